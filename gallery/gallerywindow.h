// The gallery's screen: a header with the page title and the plug-in's record,
// the pages, and a footer with the keys and the last event.
#pragma once

#include "gallerycontext.h"

#include <QPixmap>
#include <QWidget>

class ItemPage;
class QLabel;
class QStackedWidget;

class GalleryWindow : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kWidth = 800;
    static constexpr int kHeight = 480;

    GalleryWindow(GalleryContext& context, QString const& pluginText, QWidget* parent = nullptr);
    ~GalleryWindow() override;

    int pageCount() const;
    ItemPage* page(int index) const;
    QString pageId(int index) const;
    void showPage(int index);
    int currentPage() const;
    void setStatus(QString const& text);
    // Refreshes the header's T-bar reading.
    void updateHeader();

    // Renders every page, each at the height it needs, to DIR/NN-id.png (and its
    // variants to DIR/NN-id-variant.png); returns the number of pages written.
    int renderScreenshots(QString const& dir);
    // The window with the menus and pop-ups open over it.
    QPixmap grabScreen();
    // Closes menus and pop-ups left open (with Escape, as the user would).
    void closeOtherWindows();

    // --- Language: the library's catalogues under ./../share/translations/ ---
    // The catalogue of a language name ("zh_CN"); empty for English ("en", "en_US").
    static QString catalogueFor(QString const& language);
    // Switches the library's texts to `language` ("en" for the source texts); false
    // (and the language unchanged) when its catalogue can't be loaded.
    static bool setLanguage(QString const& language);
    // "zh_CN" while the Chinese catalogue is loaded, "en" otherwise.
    static QString language();
    // English <-> Chinese (the L key).
    void toggleLanguage();

private:
    GalleryContext& m_context;
    QString m_pluginText;
    QLabel* m_title = nullptr;
    QLabel* m_plugin = nullptr;
    QLabel* m_status = nullptr;
    QStackedWidget* m_stack = nullptr;
    QStringList m_ids;
};

// Makes the desktop keyboard work like the panel: PageUp/PageDown become fast knob
// turns (Up/Down with a level in the text), Left/Right change pages, [ and ] move
// the T-bar, L switches the language (English <-> Chinese) while no row is edited.
class KnobKeyboard : public QObject
{
    Q_OBJECT
public:
    KnobKeyboard(GalleryWindow* window, GalleryContext& context);
    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr char const* kFastLevel = "0.05";

private:
    GalleryWindow* m_window;
    GalleryContext& m_context;
};
