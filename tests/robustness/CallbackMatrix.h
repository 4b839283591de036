#pragma once

#include "robustness/Bench.h"
#include "robustness/WatchingApplication.h"

#include <QObject>
#include <QStringList>
#include <QTest>
#include <QVector>

#include <functional>

struct Deed;

/// How a value leaves the library.
enum class Road {
    DelegateSetValue,
    DelegateValue, // the host is asked for it
    ValueChanged,
    RunStarts,
    RunEnds,
    KitSignal,
    KitClient,
};

/// What makes it leave.
enum class Occasion { User, ContextMenu, Dialog, Timer, Host };

/// A place where the host's code runs.
struct Tap
{
    Road road;
    QString name;
    std::function<void(Bench &)> connect; // so that Bench::calledBack() is called there
};

/// Something that there is not, and why.
struct Impossible
{
    QString what;
    QString reason;
};

/// Something that a user, or the host, does with the subject from beginning to end.
struct Gesture
{
    QString name;
    Occasion occasion;
    QStringList taps; // the names of those that it leads to
    std::function<void(Bench &)> perform;

    // What a host has to leave to the event loop, "deletes the window" for instance, since something
    // of Qt's goes on that the library cannot keep: by the name of the deed.
    QVector<Impossible> laterOnly = {};
};

/// One type of property, described in one way.
struct Subject
{
    QString name;
    QString type;
    Bench::Description describe;
    Bench::Preparation prepare;
    QVector<QVariant> values; // two that the editor shows differently; none if it shows none
    QVector<Tap> kitTaps;
    QVector<Gesture> gestures; // the first one edits, if one does
    QVector<Impossible> impossible;
    bool hasWidget = true; // else there is none to delete
    std::function<bool(const QVariant &, const QVariant &)> isSame = std::equal_to<>();
};

QString nameOf(Road road);
QString nameOf(Occasion occasion);

/// A tap of a signal of what find(bench) gives, if that is there.
template <typename Find, typename Signal>
Tap kitTap(const QString &name, Find find, Signal signal)
{
    return {Road::KitSignal, name, [find, signal](Bench &bench) {
                auto *const object = find(bench);
                if (object)
                    QObject::connect(object, signal, object, [&bench] { bench.calledBack(); });
            }};
}

/// The gestures that every editor with a widget has: its menu entry, and being asked to refresh.
QVector<Gesture> commonGestures();
Gesture menuGesture();
Gesture refreshGesture();

/// Lists these as impossible, all for one reason.
template <typename... What>
QVector<Impossible> impossible(const QString &reason, What... what)
{
    return {Impossible{nameOf(what), reason}...};
}

/// Runs every cell of types, roads and deeds for its part of the types.
class CallbackMatrix : public QObject
{
    Q_OBJECT

public:
    /// part names the part of the types that the subjects are to cover.
    CallbackMatrix(const QString &part, QVector<Subject> subjects, int expectedCells);

private Q_SLOTS:
    void initTestCase();
    void partsShareOutAllTypes();
    void everyRoadIsRunOrListed_data();
    void everyRoadIsRunOrListed();
    void gesturesDoWhatTheyClaim_data();
    void gesturesDoWhatTheyClaim();
    void kitWidgetsAreTapped();
    void hostActs_data();
    void hostActs();
    void allCellsRan();

private:
    void addCells(int subject, int gesture, const QString &tap);
    void checkPanel(Bench &bench, const Subject &subject, const Deed &deed);

    const QString m_part;
    const QVector<Subject> m_subjects;
    const int m_expectedCells;
    int m_cells = 0;
};

/// Makes the main program of a part.
#define TESSARK_CALLBACK_MATRIX(part, subjects, cells)                                             \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        WatchingApplication application(argc, argv);                                               \
        CallbackMatrix matrix(QStringLiteral(part), subjects, cells);                              \
        return QTest::qExec(&matrix, argc, argv);                                                  \
    }
