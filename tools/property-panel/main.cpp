#include "Language.h"
#include "Program.h"
#include "StandardStreams.h"

#include <QApplication>

using namespace Tessark::PropertyPanel;

int main(int argc, char **argv)
{
    protectStandardStreams();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const PlatformChoice choice = choosePlatform(arguments);

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("property-panel"));
    QApplication::setApplicationVersion(QStringLiteral(TESSARK_VERSION));
    followUserLanguage();
    return static_cast<int>(runProgram(QApplication::arguments(), currentDisplay(choice)));
}
