#include "robustness/CallbackMatrix.h"

#include "robustness/Deeds.h"
#include "robustness/Hand.h"
#include "support/MessageRecorder.h"
#include "support/Registry.h"
#include "support/TestEditors.h"

#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

constexpr Road kRoads[] = {Road::DelegateSetValue, Road::DelegateValue, Road::ValueChanged,
                           Road::RunStarts,        Road::RunEnds,       Road::KitSignal,
                           Road::KitClient};
constexpr Occasion kOccasions[] = {Occasion::ContextMenu, Occasion::Dialog, Occasion::Timer};
constexpr int kPasses = 2; // in the first callback, in a later one

/// Which program of the matrix has which types.
QMap<QString, QStringList> parts()
{
    return {
        {QStringLiteral("numbers"),
         {kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypePercent}},
        {QStringLiteral("vectors"), {kPropertyTypeVec2, kPropertyTypeVec3, kPropertyTypeVec4}},
        {QStringLiteral("color"), {kPropertyTypeColor}},
        {QStringLiteral("transform"), {kPropertyTypeTransform2D}},
        {QStringLiteral("sizes"),
         {kPropertyTypeSize, kPropertyTypeRenderSize, kPropertyTypeImageFormat}},
        {QStringLiteral("choices"),
         {kPropertyTypeBoolean, kPropertyTypeEnumeration, kPropertyTypeTexture,
          kPropertyTypeAction}},
        {QStringLiteral("texts"),
         {kPropertyTypeString, kPropertyTypeText, kPropertyTypeStaticText, kPropertyTypeImage,
          kPropertyTypeSeparator, kPropertyTypeFilename}},
        {QStringLiteral("structure"),
         {kPropertyTypeBeginGroup, kPropertyTypeEndGroup, kPropertyTypeBeginTabGroup,
          kPropertyTypeTab, kPropertyTypeEndTabGroup}},
    };
}

Tap editorTap(Road road, void (PropertyEditor::*signal)())
{
    return {road, nameOf(road), [signal](Bench &bench) {
                PropertyEditor *const editor = bench.editor();
                QObject::connect(editor, signal, editor, [&bench] { bench.calledBack(); });
            }};
}

/// The taps that every type has, and the kit's.
QVector<Tap> tapsOf(const Subject &subject)
{
    QVector<Tap> taps{
        {Road::DelegateSetValue, nameOf(Road::DelegateSetValue),
         [](Bench &bench) {
             bench.delegate->onSetValue = [&bench] {
                 if (bench.delegate->changes.last().name == kSubjectName)
                     bench.calledBack();
             };
         }},
        {Road::DelegateValue, nameOf(Road::DelegateValue),
         [](Bench &bench) {
             bench.delegate->onValue = [&bench] {
                 if (bench.delegate->reads.last() == kSubjectName)
                     bench.calledBack();
             };
         }},
        editorTap(Road::ValueChanged, &PropertyEditor::valueChanged),
        editorTap(Road::RunStarts, &PropertyEditor::startInteractiveChange),
        editorTap(Road::RunEnds, &PropertyEditor::endInteractiveChange),
    };
    return taps + subject.kitTaps;
}

/// What came of a gesture that nobody disturbed.
struct Observation
{
    QStringList taps; // the names of those that were reached
    bool byTimer = false;
};

/// A bench that shows the subject's first value, with the host waiting at the tap.
std::unique_ptr<Bench> benchFor(const Subject &subject, const Tap &tap)
{
    auto bench = std::make_unique<Bench>(subject.describe, subject.prepare);
    bench->delegate->values[kSubjectName] = subject.values.value(0);
    bench->panel->updateUI();
    bench->delegate->changes.clear();
    tap.connect(*bench);
    return bench;
}

/// Does it in an event loop, as users do.
void perform(const Gesture &gesture, Bench &bench)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        gesture.perform(bench);
        loop.quit();
    });
    loop.exec();
    bench.settle();
}

/// Does it twice, since the host may wait for a later callback.
void performTwice(const Gesture &gesture, Bench &bench)
{
    perform(gesture, bench);
    perform(gesture, bench);
}

Observation observe(const Subject &subject, const Gesture &gesture)
{
    Observation seen;
    const auto taps = tapsOf(subject);
    for (const Tap &tap : taps) {
        const auto bench = benchFor(subject, tap);
        performTwice(gesture, *bench);
        if (bench->callbacks > 0)
            seen.taps.append(tap.name);
        seen.byTimer |= bench->timerCallbacks > 0;
    }
    return seen;
}

const Tap *tapNamed(const QVector<Tap> &taps, const QString &name)
{
    const auto found =
        std::find_if(taps.begin(), taps.end(), [&](const Tap &tap) { return tap.name == name; });
    return found == taps.end() ? nullptr : &*found;
}

bool hasEntry(const QVector<Impossible> &list, const QString &what)
{
    return std::any_of(list.begin(), list.end(), [&](const Impossible &entry) {
        return entry.what == what && !entry.reason.isEmpty();
    });
}

/// Whether the editor has a widget of the kit.
bool hasKitWidget(const Bench &bench)
{
    QWidget *const top = bench.widget();
    if (!top)
        return false;
    const auto inner = top->findChildren<QWidget *>();
    for (const QWidget *widget : QList<QWidget *>{top} + inner) {
        if (QByteArray(widget->metaObject()->className()).startsWith("Tessark::UI::"))
            return true;
    }
    return false;
}

/// What the matrix says of a type: the roads and occasions that it has.
QStringList claimedBy(const QVector<Subject> &subjects, const QString &type)
{
    QStringList claimed;
    for (const Subject &subject : subjects) {
        if (subject.type != type)
            continue;
        const auto taps = tapsOf(subject);
        for (const Gesture &gesture : subject.gestures) {
            if (!gesture.taps.isEmpty())
                claimed.append(nameOf(gesture.occasion));
            for (const QString &name : gesture.taps) {
                if (const Tap *const tap = tapNamed(taps, name))
                    claimed.append(nameOf(tap->road));
            }
        }
    }
    return claimed;
}

QStringList allRoadsAndOccasions()
{
    QStringList all;
    for (const Road road : kRoads)
        all.append(nameOf(road));
    for (const Occasion occasion : kOccasions)
        all.append(nameOf(occasion));
    return all;
}

/// In one line, so that a failure tells what differs.
QString sorted(QStringList list)
{
    list.sort();
    return list.join(QStringLiteral(", "));
}

/// All warnings, without those of the platform on what it has no windows for.
QString complaints(const MessageRecorder &recorder)
{
    QStringList result;
    const auto warnings = recorder.warnings();
    for (const QString &warning : warnings) {
        if (!warning.startsWith(QLatin1String("This plugin does not support ")))
            result.append(warning);
    }
    return result.join(QLatin1Char('\n'));
}

} // namespace

QString nameOf(Road road)
{
    switch (road) {
    case Road::DelegateSetValue:
        return QStringLiteral("delegate setValue");
    case Road::DelegateValue:
        return QStringLiteral("delegate value");
    case Road::ValueChanged:
        return QStringLiteral("valueChanged");
    case Road::RunStarts:
        return QStringLiteral("startInteractiveChange");
    case Road::RunEnds:
        return QStringLiteral("endInteractiveChange");
    case Road::KitSignal:
        return QStringLiteral("kit signal");
    case Road::KitClient:
        return QStringLiteral("kit client");
    }
    return QString();
}

QString nameOf(Occasion occasion)
{
    switch (occasion) {
    case Occasion::User:
        return QStringLiteral("user");
    case Occasion::ContextMenu:
        return QStringLiteral("context menu");
    case Occasion::Dialog:
        return QStringLiteral("dialog");
    case Occasion::Timer:
        return QStringLiteral("timer");
    case Occasion::Host:
        return QStringLiteral("host");
    }
    return QString();
}

QVector<Gesture> commonGestures()
{
    return {menuGesture(), refreshGesture()};
}

Gesture menuGesture()
{
    return {QStringLiteral("Set to Default"),
            Occasion::ContextMenu,
            {nameOf(Road::DelegateSetValue), nameOf(Road::ValueChanged)},
            [](Bench &bench) {
                if (QWidget *const row = bench.widget())
                    Hand::pickFromMenu(bench.panel.data(), row->geometry().center());
            }};
}

Gesture refreshGesture()
{
    return {
        QStringLiteral("refresh"), Occasion::Host, {nameOf(Road::DelegateValue)}, [](Bench &bench) {
            if (bench.panel)
                QTimer::singleShot(0, bench.panel, &PropertyEditorPanel::updateUI);
            QCoreApplication::processEvents();
        }};
}

CallbackMatrix::CallbackMatrix(const QString &part, QVector<Subject> subjects, int expectedCells)
    : m_part(part)
    , m_subjects(std::move(subjects))
    , m_expectedCells(expectedCells)
{
}

void CallbackMatrix::initTestCase()
{
    PropertyEditorPanel::InitialiseRegistry();
}

void CallbackMatrix::partsShareOutAllTypes()
{
    QStringList shared;
    const auto all = parts();
    for (const QStringList &types : all)
        shared += types;
    QStringList registered;
    for (const LibraryEditor &editor : libraryEditors())
        registered.append(editor.type);
    QCOMPARE(sorted(shared), sorted(registered));

    QStringList own;
    for (const Subject &subject : m_subjects)
        own.append(subject.type);
    own.removeDuplicates();
    QCOMPARE(sorted(own), sorted(all.value(m_part)));
}

void CallbackMatrix::everyRoadIsRunOrListed_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("what");
    const auto types = parts().value(m_part);
    for (const QString &type : types) {
        for (const QString &what : allRoadsAndOccasions())
            QTest::newRow(qPrintable(type + QLatin1String(": ") + what)) << type << what;
    }
}

// That what is listed does not happen, and what is claimed does, is seen in gesturesDoWhatTheyClaim().
void CallbackMatrix::everyRoadIsRunOrListed()
{
    QFETCH(QString, type);
    QFETCH(QString, what);
    bool isListed = false;
    for (const Subject &subject : m_subjects)
        isListed |= subject.type == type && hasEntry(subject.impossible, what);
    QCOMPARE(claimedBy(m_subjects, type).contains(what), !isListed);
}

void CallbackMatrix::gesturesDoWhatTheyClaim_data()
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<int>("gesture");
    for (int i = 0; i < m_subjects.size(); ++i) {
        const Subject &subject = m_subjects.at(i);
        for (int j = 0; j < subject.gestures.size(); ++j) {
            const QString name = subject.name + QLatin1String(": ") + subject.gestures.at(j).name;
            QTest::newRow(qPrintable(name)) << i << j;
        }
    }
}

void CallbackMatrix::gesturesDoWhatTheyClaim()
{
    QFETCH(int, subject);
    QFETCH(int, gesture);
    const Gesture &what = m_subjects.at(subject).gestures.at(gesture);
    const MessageRecorder recorder;
    WatchingApplication::instance()->dialogs.clear();

    const Observation seen = observe(m_subjects.at(subject), what);

    QCOMPARE(sorted(seen.taps), sorted(what.taps));
    QCOMPARE(seen.byTimer, what.occasion == Occasion::Timer);
    QCOMPARE(!WatchingApplication::instance()->dialogs.isEmpty(),
             what.occasion == Occasion::Dialog);
    QCOMPARE(complaints(recorder), QString());
}

// A kit widget that nobody listens to would hide a road.
void CallbackMatrix::kitWidgetsAreTapped()
{
    for (const Subject &subject : m_subjects) {
        const Bench bench(subject.describe, subject.prepare);
        QCOMPARE(!subject.kitTaps.isEmpty(), hasKitWidget(bench));
    }
}

void CallbackMatrix::hostActs_data()
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<int>("gesture");
    QTest::addColumn<QString>("tap");
    QTest::addColumn<int>("deed");
    QTest::addColumn<int>("callback");
    for (int i = 0; i < m_subjects.size(); ++i) {
        const auto &gestures = m_subjects.at(i).gestures;
        for (int j = 0; j < gestures.size(); ++j) {
            for (const QString &tap : gestures.at(j).taps)
                addCells(i, j, tap);
        }
    }
}

void CallbackMatrix::addCells(int subject, int gesture, const QString &tap)
{
    const Subject &what = m_subjects.at(subject);
    for (int i = 0; i < deeds().size(); ++i) {
        const bool isAboutWidget = deeds().at(i).leavesEditor && !deeds().at(i).leavesWidget;
        if (isAboutWidget && !what.hasWidget)
            continue;
        for (int callback = 1; callback <= kPasses; ++callback) {
            const QString name = QStringLiteral("%1: %2: %3 %4: host %5")
                                     .arg(what.name, what.gestures.at(gesture).name, tap)
                                     .arg(callback)
                                     .arg(deeds().at(i).name);
            QTest::newRow(qPrintable(name)) << subject << gesture << tap << i << callback;
        }
    }
}

void CallbackMatrix::hostActs()
{
    QFETCH(int, subject);
    QFETCH(int, gesture);
    QFETCH(QString, tap);
    QFETCH(int, deed);
    QFETCH(int, callback);
    const Subject &what = m_subjects.at(subject);
    const Deed &act = deeds().at(deed);
    const auto taps = tapsOf(what);
    const MessageRecorder recorder;
    const auto bench = benchFor(what, *tapNamed(taps, tap));

    const bool later = hasEntry(what.gestures.at(gesture).laterOnly, act.name);
    bench->actIn(callback, [&] { later ? act.actLater(*bench) : act.act(*bench); });
    performTwice(what.gestures.at(gesture), *bench);

    QCOMPARE(bench->acts, 1);
    QCOMPARE(!bench->panel.isNull(), act.leavesPanel);
    QCOMPARE(bench->editor() != nullptr, act.leavesEditor);
    QCOMPARE(bench->widget() != nullptr, act.leavesWidget && what.hasWidget);
    if (bench->panel)
        checkPanel(*bench, what, act);
    else if (bench->delegate && !later)
        QCOMPARE(int(bench->delegate->changes.size()), bench->changesAtAct);
    QCOMPARE(complaints(recorder), QString());
    ++m_cells;
}

/// A panel that is left still shows what the store has and stores what the user does.
void CallbackMatrix::checkPanel(Bench &bench, const Subject &subject, const Deed &deed)
{
    bench.actIn(0, nullptr);
    bench.restore();
    auto *const neighbour = editorOf<TestEditor>(*bench.panel, kNeighbourName);
    bench.delegate->values[kNeighbourName] = 41;
    bench.delegate->values[kSubjectName] = subject.values.value(1);
    bench.panel->updateUI();
    QCOMPARE(neighbour->shown, QVariant(41));
    PropertyEditor *const editor = bench.editor();
    const bool isWhole = deed.leavesEditor && deed.leavesWidget;
    if (isWhole && !subject.values.isEmpty())
        QVERIFY(subject.isSame(editor->value(), subject.values.at(1)));
    if (editor && !isWhole)
        editor->revertToDefaultValue(); // shows nothing and must not mind

    bench.delegate->changes.clear();
    neighbour->edit(42);
    QCOMPARE(bench.delegate->log(), QStringList(QStringLiteral("neighbour=42/0")));
    const Gesture &first = subject.gestures.first();
    if (!isWhole || !first.taps.contains(nameOf(Road::DelegateSetValue)))
        return;
    perform(first, bench);
    QCOMPARE(bench.delegate->changes.last().name, kSubjectName);
    QVERIFY(subject.isSame(bench.delegate->changes.last().value, editor->value()));
}

void CallbackMatrix::allCellsRan()
{
    qInfo("%d cells of the part \"%s\" ran", m_cells, qPrintable(m_part));
    QCOMPARE(m_cells, m_expectedCells);
}
