#include "lcdfwtranslatemanager.h"

#include <QCoreApplication>
#include <QTranslator>

LCDFWTranslateManager* LCDFWTranslateManager::instance()
{
    static LCDFWTranslateManager manager;
    return &manager;
}

LCDFWTranslateManager::LCDFWTranslateManager() = default;
LCDFWTranslateManager::~LCDFWTranslateManager() = default;

selvik::trans::Translator const& LCDFWTranslateManager::translator() const { return m_translator; }

QString LCDFWTranslateManager::currentCatalogue() const { return m_catalogue; }

bool LCDFWTranslateManager::setLanguage(QString const& qmFile)
{
    selvik::trans::Translator probe;
    if (!probe.load(qmFile))
        return false;
    if (QTranslator* old = m_translator.current(); old && QCoreApplication::instance())
        QCoreApplication::removeTranslator(old);
    m_translator.clear();
    m_translator.load(qmFile);
    m_catalogue = qmFile;
    // Installing posts QEvent::LanguageChange to every widget.
    if (QCoreApplication::instance())
        QCoreApplication::installTranslator(m_translator.current());
    return true;
}

void LCDFWTranslateManager::resetLanguage()
{
    QTranslator* old = m_translator.current();
    if (!old)
        return;
    if (QCoreApplication::instance())
        QCoreApplication::removeTranslator(old);
    m_translator.clear();
    m_catalogue.clear();
}
