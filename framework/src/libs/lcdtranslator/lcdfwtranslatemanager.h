// Translation manager of the host (liblcdtranslator): owns the translator that
// pages pass to selvik::trans::translate.
#pragma once

#include <QString>
#include <selvik/trans/translate.h>

#if defined(LCDTRANSLATOR_BUILD)
#define LCDTRANSLATOR_EXPORT __attribute__((visibility("default")))
#else
#define LCDTRANSLATOR_EXPORT
#endif

class LCDTRANSLATOR_EXPORT LCDFWTranslateManager
{
public:
    static LCDFWTranslateManager* instance();

    selvik::trans::Translator const& translator() const;

    // Switches the interface language to the catalogue `qmFile`: the catalogue also
    // serves QObject::tr(), and every widget receives QEvent::LanguageChange.
    // Returns false and keeps the current language when the file can't be loaded.
    bool setLanguage(QString const& qmFile);
    // Back to the source texts (again with a language-change event).
    void resetLanguage();
    QString currentCatalogue() const;

private:
    LCDFWTranslateManager();
    ~LCDFWTranslateManager();
    LCDFWTranslateManager(LCDFWTranslateManager const&) = delete;
    LCDFWTranslateManager& operator=(LCDFWTranslateManager const&) = delete;

    selvik::trans::Translator m_translator;
    QString m_catalogue;
};
