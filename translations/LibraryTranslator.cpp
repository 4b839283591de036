// Compiled into each library and into the program. TESSARK_CATALOG names what is translated, and
// TESSARK_CATALOG_RESOURCE the resource with its translations.

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QMutex>
#include <QTranslator>

#include <map>
#include <memory>

#define TESSARK_INIT_RESOURCE(name) Q_INIT_RESOURCE(name)

// Where the library is loaded by a program that runs, its resources would come after its translator.
// Outside of namespaces, as resources are.
static void initTranslationResource()
{
    TESSARK_INIT_RESOURCE(TESSARK_CATALOG_RESOURCE);
}

namespace {

const QString kSourceLanguage = QStringLiteral("en");

QString pathOf(const QString &language)
{
    return QStringLiteral(":/tessark/translations/" TESSARK_CATALOG "_%1.qm").arg(language);
}

/// The first language of the locale that there is a translation to. That of the source has one, too,
/// for its plurals, and is the language of everybody else.
QString languageFor(const QLocale &locale)
{
    const QStringList languages = locale.uiLanguages();
    for (const QString &entry : languages) {
        const QString language = entry.section(QLatin1Char('-'), 0, 0);
        if (QFile::exists(pathOf(language)))
            return language;
    }
    return kSourceLanguage;
}

/**
 * Translates to the language of the default QLocale, whichever that is when a text is needed. It is
 * installed before the translators of the host, which so come before it.
 */
class LibraryTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override
    {
        const QMutexLocker lock(&m_mutex);
        const QLocale locale;
        if (!m_locale || *m_locale != locale) {
            m_locale = std::make_unique<QLocale>(locale);
            m_catalog = catalogOf(languageFor(locale));
        }
        return m_catalog->translate(context, sourceText, disambiguation, n);
    }

private:
    const QTranslator *catalogOf(const QString &language) const
    {
        // A translator that goes locks the list of translators, which is locked while texts are
        // translated: they stay.
        std::unique_ptr<QTranslator> &catalog = m_catalogs[language];
        if (!catalog) {
            catalog = std::make_unique<QTranslator>();
            const bool hasTexts = catalog->load(pathOf(language));
            Q_UNUSED(hasTexts); // without any, it translates nothing
        }
        return catalog.get();
    }

    mutable QMutex m_mutex; // texts are needed in any thread
    mutable std::unique_ptr<QLocale> m_locale;
    mutable std::map<QString, std::unique_ptr<QTranslator>> m_catalogs;
    mutable const QTranslator *m_catalog = nullptr;
};

void installTranslator()
{
    initTranslationResource();
    // Goes with the library; a program may have one application object after the other.
    static LibraryTranslator translator;
    QCoreApplication::installTranslator(&translator);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(installTranslator)
