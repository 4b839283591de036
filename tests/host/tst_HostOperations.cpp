// Edits, undo and everything that a host may do meanwhile, at random: stores, panel and undo stack
// agree after each operation with a model of their own. Another seed or number of operations:
// TESSARK_OPERATIONS_SEED and TESSARK_OPERATIONS_COUNT.

#include "operations/HostScene.h"
#include "operations/HostUser.h"

#include <QSet>
#include <QTest>

#include <functional>
#include <utility>

using namespace Operations;
using namespace Tessark::PropertyHost;
using TestSupport::below;
using TestSupport::happens;
using TestSupport::Random;

namespace {

constexpr int kSeed = 1;
constexpr int kOperations = 10000;
constexpr int kRemembered = 20;
constexpr int kMostSteps = 40;

int setting(const char *variable, int standard)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : standard;
}

/// A host and a user who act at random.
class OperationRun
{
public:
    explicit OperationRun(int seed);

    /// The next operation; empty, or what did not agree after it.
    QString step();

    QStringList last() const { return m_last; }

    /// The operations that there never was something to do with.
    QStringList notDone() const;

private:
    struct Operation
    {
        QString name;
        int weight;
        std::function<QString()> run; // gives details, or nothing where it cannot be done now
    };

    void add(const char *name, int weight, const std::function<QString()> &run);
    void addUser();
    void addHost();
    void addReplacements();
    const Operation &any();
    int anyObject() { return below(m_random, m_scene.objectCount()); }
    QVector<int> anyObjects();
    QString anyValueRow(int object);
    QVariant anyValue(const QString &row);
    QString undoAll();
    QString paste();
    QString undoSome();
    QString redoSome();
    QString setSome();
    QString setSomeMode();
    QString setSomeRules();
    QString editWithoutStack();
    QString byCode();

    Random m_random;
    HostScene m_scene;
    HostUser m_user;
    QVector<Operation> m_operations;
    QString m_fault;
    QStringList m_last;
    QSet<QString> m_done;
};

OperationRun::OperationRun(int seed)
    : m_random(Random::result_type(seed))
    , m_user(m_scene, m_random)
{
    addUser();
    addHost();
    addReplacements();
}

QString OperationRun::step()
{
    m_scene.activateView();
    const Operation &operation = any();
    const QString details = operation.run();
    if (!details.isEmpty())
        m_done.insert(operation.name);
    m_last.append(QStringLiteral("%1: %2 (%3)")
                      .arg(operation.name,
                           details.isEmpty() ? QStringLiteral("nothing to do it with") : details,
                           m_scene.inWords()));
    if (m_last.size() > kRemembered)
        m_last.removeFirst();
    QStringList faults{std::exchange(m_fault, QString()), m_user.takeFault(), m_scene.difference()};
    faults.removeAll(QString());
    if (faults.isEmpty() && m_scene.model().steps().size() > kMostSteps)
        return undoAll();
    return faults.join(QStringLiteral("; "));
}

QStringList OperationRun::notDone() const
{
    QStringList names;
    for (const Operation &operation : m_operations) {
        if (!m_done.contains(operation.name))
            names.append(operation.name);
    }
    return names;
}

void OperationRun::add(const char *name, int weight, const std::function<QString()> &run)
{
    m_operations.append({QString::fromLatin1(name), weight, run});
}

void OperationRun::addUser()
{
    add("type", 14, [this] { return m_user.type(); });
    add("drag", 14, [this] { return m_user.drag(); });
    add("check", 6, [this] { return m_user.check(); });
    add("check and lose panel", 1, [this] { return m_user.checkAndLosePanel(); });
    add("choose", 5, [this] { return m_user.choose(); });
    add("enter text", 5, [this] { return m_user.enterText(); });
    add("go through text", 2, [this] { return m_user.passThroughText(); });
    add("set to default", 5, [this] { return m_user.pickDefault(); });
    add("fold", 3, [this] { return m_user.fold(); });
    add("trigger", 2, [this] { return m_user.trigger(); });
}

void OperationRun::addHost()
{
    add("undo", 12, [this] { return undoSome(); });
    add("redo", 8, [this] { return redoSome(); });
    add("refresh", 3, [this] {
        m_scene.refresh();
        return QStringLiteral("all");
    });
    add("host sets", 5, [this] { return setSome(); });
    add("paste", 4, [this] { return paste(); });
    add("by code", 4, [this] { return byCode(); });
    add("commit mode", 3, [this] { return setSomeMode(); });
    add("rules", 2, [this] { return setSomeRules(); });
    add("select", 5, [this] {
        const QVector<int> objects = anyObjects();
        m_scene.select(objects);
        QStringList names;
        for (const int object : objects)
            names.append(QString::number(object));
        return QStringLiteral("objects ") + names.join(QLatin1Char(' '));
    });
    add("partial rows", 1, [this] {
        const bool leaveOut = happens(m_random, 50);
        m_scene.setPartialRows(leaveOut ? PartialRows::LeaveOut : PartialRows::Disable);
        return leaveOut ? QStringLiteral("left out") : QStringLiteral("disabled");
    });
}

void OperationRun::addReplacements()
{
    add("show selection", 3, [this] {
        m_scene.showSelection();
        return QStringLiteral("again");
    });
    add("show object", 3, [this] {
        const int object = anyObject();
        m_scene.showObject(object);
        return QString::number(object);
    });
    add("new view", 1, [this] {
        m_scene.renewView();
        return QStringLiteral("and panel");
    });
    add("new policy", 1, [this] {
        m_scene.renewPolicy();
        return QStringLiteral("for commits");
    });
    add("new selection delegate", 1, [this] {
        m_scene.renewSelectionDelegate();
        return QStringLiteral("with the same objects");
    });
    add("new undo delegate", 1, [this] {
        const int object = anyObject();
        m_scene.renewUndoDelegate(object);
        return QString::number(object);
    });
    add("new object", 1, [this] {
        const int object = anyObject();
        m_scene.renewObject(object);
        return QString::number(object);
    });
    add("new stack", 1, [this] { return editWithoutStack(); });
}

const OperationRun::Operation &OperationRun::any()
{
    int weights = 0;
    for (const Operation &operation : std::as_const(m_operations))
        weights += operation.weight;
    int chosen = below(m_random, weights);
    int index = 0;
    while (chosen >= m_operations.at(index).weight)
        chosen -= m_operations.at(index++).weight;
    return m_operations.at(index);
}

QVector<int> OperationRun::anyObjects()
{
    QVector<int> objects;
    const int count = below(m_random, 10) == 0 ? 0 : 1 + below(m_random, 3);
    while (objects.size() < count) {
        const int object = anyObject();
        if (!objects.contains(object))
            objects.append(object);
    }
    return objects;
}

QString OperationRun::anyValueRow(int object)
{
    const QStringList rows = {kGain, kLimit, kCount, kOn, kTitle, kMode, kPlace};
    QString row;
    do {
        row = rows.at(below(m_random, int(rows.size())));
    } while (!m_scene.model().has(object, row));
    return row;
}

QVariant OperationRun::anyValue(const QString &row)
{
    if (row == kGain || row == kLimit)
        return 1 + below(m_random, 30) / 2.0;
    if (row == kCount)
        return below(m_random, kHighestCount + 1);
    if (row == kOn)
        return happens(m_random, 50);
    if (row == kTitle)
        return QString(QLatin1Char(char('a' + below(m_random, 3))));
    if (row == kMode)
        return below(m_random, kModes);
    return QVector2D(float(1 + below(m_random, 5)), float(1 + below(m_random, 5)));
}

/// Everything back to the first step and forth again.
QString OperationRun::undoAll()
{
    const int steps = m_scene.model().stepIndex();
    for (int i = 0; i < steps; ++i) {
        m_scene.undo(true);
        const QString fault = m_scene.difference();
        if (!fault.isEmpty())
            return QStringLiteral("undoing all, %1: %2").arg(i).arg(fault);
    }
    for (int i = 0; i < m_scene.model().steps().size(); ++i) {
        m_scene.redo();
        const QString fault = m_scene.difference();
        if (!fault.isEmpty())
            return QStringLiteral("redoing all, %1: %2").arg(i).arg(fault);
    }
    m_scene.renewStack();
    return m_scene.difference();
}

QString OperationRun::paste()
{
    const QStringList rows = m_scene.rowsInSight();
    if (rows.isEmpty())
        return {};
    const QString row = rows.at(below(m_random, int(rows.size())));
    if (row == kPlace && m_scene.model().isMixed(row))
        return {}; // a part that its field shows already counts as not edited
    const QVariant value = anyValue(row);
    m_scene.paste(row, value);
    return row;
}

QString OperationRun::undoSome()
{
    const int count = 1 + below(m_random, 3);
    for (int i = 0; i < count && m_fault.isEmpty(); ++i) {
        m_scene.flush();
        // What the panel itself did it shows by itself.
        const bool refreshes = !m_scene.model().isLastStepOfPanel() || happens(m_random, 20);
        m_scene.undo(refreshes);
        m_fault = m_scene.difference();
    }
    return QString::number(count);
}

QString OperationRun::redoSome()
{
    if (m_scene.model().stepIndex() == m_scene.model().steps().size())
        return {};
    m_scene.redo();
    return QStringLiteral("one");
}

QString OperationRun::setSome()
{
    const int object = anyObject();
    const QString row = anyValueRow(object);
    const QVariant value = anyValue(row);
    m_scene.hostSets(object, row, value);
    m_scene.refresh();
    return QStringLiteral("%1 of object %2").arg(row).arg(object);
}

QString OperationRun::setSomeMode()
{
    const QStringList rows = {kGain, kLimit, kCount, kOn, kMode, kPlace};
    const QString row = rows.at(below(m_random, int(rows.size())));
    const QString mode =
        QStringList{QStringLiteral("live"), QStringLiteral("end"), QStringLiteral("rate:20")}.at(
            below(m_random, 3));
    m_scene.setMode(row, *CommitMode::fromString(mode));
    return row + QLatin1Char(' ') + mode;
}

QString OperationRun::setSomeRules()
{
    const QString visible =
        QStringList{QString(), kOn, QStringLiteral("mode == 1")}.at(below(m_random, 3));
    const QString enabled = happens(m_random, 50) ? kOn : QString();
    const bool follows = happens(m_random, 50);
    const int object = happens(m_random, 50) ? anyObject() : -1;
    for (int i = 0; i < m_scene.objectCount(); ++i) {
        if (object < 0 || i == object)
            m_scene.setRules(i, visible, enabled, follows);
    }
    return QStringLiteral("of %1: \"%2\", \"%3\", %4")
        .arg(object)
        .arg(visible, enabled)
        .arg(follows);
}

QString OperationRun::editWithoutStack()
{
    m_scene.takeStackAway();
    const QString edit = m_user.drag() + m_user.check();
    m_fault = m_scene.difference();
    m_scene.renewStack();
    return edit.isEmpty() ? QStringLiteral("at once") : edit;
}

/// As a host's own commands for the selection.
QString OperationRun::byCode()
{
    if (m_scene.model().shownObject() && happens(m_random, 50))
        return {};
    const int function = below(m_random, 3);
    const QString row = anyValueRow(0);
    const bool agrees = function == 0   ? m_scene.assign(row, anyValue(row))
                        : function == 1 ? m_scene.add(kCount, below(m_random, 100) - 50)
                                        : m_scene.setToDefault(row);
    if (!agrees)
        m_fault = QStringLiteral("a function of the selection did not say what it did");
    if (m_scene.model().shownObject())
        m_scene.refresh();
    return QStringLiteral("%1 of %2").arg(function).arg(row);
}

} // namespace

class tst_HostOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everythingAgreesAfterEachOperation();
};

void tst_HostOperations::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_HostOperations::everythingAgreesAfterEachOperation()
{
    const int seed = setting("TESSARK_OPERATIONS_SEED", kSeed);
    const int operations = setting("TESSARK_OPERATIONS_COUNT", kOperations);
    OperationRun run(seed);
    for (int i = 0; i < operations; ++i) {
        const QString fault = run.step();
        if (fault.isEmpty())
            continue;
        const QString report = QStringLiteral("seed %1, operation %2: %3, after\n  %4")
                                   .arg(seed)
                                   .arg(i)
                                   .arg(fault, run.last().join(QStringLiteral("\n  ")));
        QFAIL(qPrintable(report));
    }
    if (operations >= kOperations)
        QCOMPARE(run.notDone(), QStringList());
}

QTEST_MAIN(tst_HostOperations)
#include "tst_HostOperations.moc"
