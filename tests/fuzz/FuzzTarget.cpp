#include "fuzz/FuzzTarget.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

/// Keeps warnings, which hostile input makes plenty of, off the screen. A fatal message still ends the
/// program: Qt sees to that after this function returns.
void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "fatal: %s\n", qPrintable(text));
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(handleMessage);
    // Never destroyed: a fuzzer leaves without running destructors.
    static auto *const s_application = new QApplication(*argc, *argv);
    s_application->setQuitOnLastWindowClosed(false);
    return 0;
}

namespace Fuzz {

void fail(const QString &claim)
{
    std::fprintf(stderr, "broken: %s\n", qPrintable(claim));
    std::abort();
}

} // namespace Fuzz
