// Text translation service of the host (libtxtranslate).
#pragma once

#include <QString>
#include <memory>

#if defined(TXTRANSLATE_BUILD)
#define TXTRANSLATE_EXPORT __attribute__((visibility("default")))
#else
#define TXTRANSLATE_EXPORT
#endif

class QTranslator;

namespace selvik {
namespace trans {

// A set of loaded message catalogues (.qm files), looked up newest first.
class TXTRANSLATE_EXPORT Translator
{
public:
    Translator();
    ~Translator();
    Translator(Translator const&) = delete;
    Translator& operator=(Translator const&) = delete;

    // Loads a catalogue; returns false (and keeps the current ones) if it can't be read.
    bool load(QString const& qmFile);
    void clear();
    bool isEmpty() const;

    // Plain lookup; an empty string when no catalogue knows the text.
    QString lookup(QString const& context, QString const& source, QString const& disambiguation) const;

    // The most recently loaded catalogue (nullptr if none), for installing into the application.
    QTranslator* current() const;

private:
    struct Impl;
    std::unique_ptr<Impl> d;
};

// The translation of `source` under `context` (the group is the catalogue comment,
// tried first); the source text itself when there is none.
TXTRANSLATE_EXPORT QString translate(Translator const& translator, QString const& context, QString const& group,
                                     QString const& source);

} // namespace trans
} // namespace selvik
