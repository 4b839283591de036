#include "robustness/Deeds.h"

#include <QDialog>
#include <QTimer>

using namespace Tessark::PropertyUI;

namespace {

/// Shows a modal dialog, in which act runs, until that is done.
void withDialog(const std::function<void()> &act)
{
    QDialog dialog;
    QTimer::singleShot(0, &dialog, [&dialog, act] {
        act();
        QTimer::singleShot(0, &dialog, &QDialog::reject);
    });
    dialog.exec();
}

void describeAnew(Bench &bench)
{
    bench.property()->setRange(0, 1, 2).setDefaultValue(QVariant());
    bench.property()->hints.clear();
    bench.property()->setHint(kPropertyHintEnabled, false).setHint(kPropertyHintSuffix, 7);
    bench.panel->updateProperty(bench.property());
}

void deletePanelAndDelegate(Bench &bench)
{
    delete bench.panel;
    bench.delegate.reset();
}

void deletePanelAndDelegateLater(Bench &bench)
{
    QObject::connect(bench.panel, &QObject::destroyed, [&bench] { bench.delegate.reset(); });
    bench.panel->deleteLater();
}

Deed harmless(const char *name, std::function<void(Bench &)> act)
{
    return {QString::fromLatin1(name), std::move(act), nullptr};
}

QVector<Deed> makeDeeds()
{
    return {
        harmless("refreshes all", [](Bench &bench) { bench.panel->updateUI(); }),
        harmless("updates the property",
                 [](Bench &bench) { bench.panel->updateProperty(bench.property()); }),
        harmless("changes hints and range", describeAnew),
        harmless("opens a modal dialog", [](Bench &) { withDialog([] {}); }),
        harmless("hides the panel", [](Bench &bench) { bench.panel->hide(); }),
        harmless("disables the panel", [](Bench &bench) { bench.panel->setEnabled(false); }),
        harmless("rebuilds the panel", [](Bench &bench) { bench.buildPanel(); }),
        {QStringLiteral("deletes the widget"), [](Bench &bench) { delete bench.widget(); },
         [](Bench &bench) { bench.widget()->deleteLater(); }, true, true, false},
        {QStringLiteral("deletes the editor"), [](Bench &bench) { delete bench.editor(); }, nullptr,
         true, false, false},
        {QStringLiteral("deletes the panel"), [](Bench &bench) { delete bench.panel; },
         [](Bench &bench) { bench.panel->deleteLater(); }, false, false, false},
        {QStringLiteral("deletes the window"), [](Bench &bench) { delete bench.window; },
         [](Bench &bench) { bench.window->deleteLater(); }, false, false, false},
        {QStringLiteral("deletes the panel, then the delegate"), deletePanelAndDelegate,
         deletePanelAndDelegateLater, false, false, false},
        {QStringLiteral("deletes the panel in a modal dialog"),
         [](Bench &bench) { withDialog([&bench] { delete bench.panel; }); }, nullptr, false, false,
         false},
    };
}

} // namespace

const QVector<Deed> &deeds()
{
    static const QVector<Deed> s_deeds = makeDeeds();
    return s_deeds;
}
