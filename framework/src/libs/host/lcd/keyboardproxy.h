// Front-panel input object of the host, shared with the host's keyboard service.
//
// The host registers one instance under constants::OBJ_KEYBOARD_EVENT_NAME with its
// plug-in API; the widget library only reads the T-bar through it.
#pragma once

#include <map>
#include <string>
#include <utility>

namespace LCD {

class KeyboardProxy
{
public:
    // The panel's area modules (the key groups of the long screen).
    enum eAreaModuleType {
        eAreaScreen = 0,
        eAreaLayer = 1,
        eAreaInput = 2,
        eAreaPreset = 3,
        eAreaCompanion = 4,
    };

    struct constants
    {
        // The name the host registers its KeyboardProxy under.
        static constexpr char const* OBJ_KEYBOARD_EVENT_NAME = "lcdKeyboardEvent";
    };

    // Long-screen key images, one per area module.
    static inline const std::string CodeUp = "\u2191";
    // Down arrow, as the key images name it (CodeUp: the up arrow).
    static inline const std::string CodeDown = "\u2193";
    // Background image file of each area module's long screen.
    static inline const std::map<eAreaModuleType, std::string> longScreenPNG = {
        {eAreaScreen, "./../share/themes/default/images/screen_bg.png"},
        {eAreaLayer, "./../share/themes/default/images/layer_bg.png"},
        {eAreaInput, "./../share/themes/default/images/input_bg.png"},
        {eAreaPreset, "./../share/themes/default/images/preset_bg.png"},
        {eAreaCompanion, "./../share/themes/default/images/companion_bg.png"},
    };
    // The long screen's transparent head image.
    static inline const std::string longScreenHeadImage = "./../share/themes/default/images/headtransparentbkg.png";
    // Marks of a key that is both backup and global.
    static inline const std::string backupAndGlobalImage = "./../share/themes/default/images/backupandglobal.png";
    // Mark of a layer's state.
    static inline const std::string layerStateImage = "./../share/themes/default/images/layerStateImage.png";
    // Mark of a global key.
    static inline const std::string globalImage = "./../share/themes/default/images/global.png";
    // Mark of a backup key.
    static inline const std::string backupImage = "./../share/themes/default/images/backup.png";

    // first: raw reading, second: the T-bar's current position.
    virtual std::pair<int, int> tbarRead() = 0;

protected:
    ~KeyboardProxy() = default;
};

} // namespace LCD
