#include "Language.h"

#include "Texts.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace Tessark::PropertyPanel {

namespace {

/// Where Qt's translations are. Qt 6 has another name for it than Qt 5.
template <typename Library>
auto translationsFolder(int) -> decltype(Library::path(Library::TranslationsPath))
{
    return Library::path(Library::TranslationsPath);
}

template <typename Library>
QString translationsFolder(long)
{
    return Library::location(Library::TranslationsPath);
}

} // namespace

void followUserLanguage()
{
    auto *const translator = new QTranslator(qApp);
    if (translator->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                         translationsFolder<QLibraryInfo>(0)))
        QCoreApplication::installTranslator(translator);
    const QString direction = Texts::tr("LTR", "RTL in languages that are read from right to left");
    if (direction == QLatin1String("RTL"))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}

} // namespace Tessark::PropertyPanel
