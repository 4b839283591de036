#include "robustness/Hand.h"
#include "robustness/Subjects.h"

#include <QCheckBox>
#include <QTabBar>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

const QVector<Impossible> kCheckBoxStays{
    {QStringLiteral("deletes the widget"),
     QStringLiteral("QCheckBox goes on with itself after toggled()")}};

const QString kNoHeight = QStringLiteral("no point lies in its row");
const QString kNoWidget = QStringLiteral("it has no widget");

QVector<Impossible> impossibleForAll()
{
    return impossible(kNoRuns, Road::RunStarts, Road::RunEnds) + impossible(kNoKit, Road::KitSignal)
           + impossible(kNoClient, Road::KitClient) + impossible(kNoDialog, Occasion::Dialog)
           + impossible(kNoTimer, Occasion::Timer);
}

/// A subject in a list of these types, each with a name of its own and all with a default.
Subject among(const QString &type, const QStringList &types)
{
    Subject subject;
    subject.name = type;
    subject.type = type;
    subject.describe = [=](PropertySet &set) {
        bool isFirst = true; // a second one of the type is not the subject
        for (const QString &each : types) {
            const bool isSubject = each == type && isFirst;
            isFirst = isFirst && !isSubject;
            set.add(isSubject ? kSubjectName : QStringLiteral("other"), each).setDefaultValue(1);
        }
    };
    subject.gestures = commonGestures();
    subject.impossible = impossibleForAll();
    return subject;
}

Subject group(const QString &type)
{
    return among(type, {kPropertyTypeBeginGroup, kPropertyTypeInteger, kPropertyTypeString,
                        kPropertyTypeEndGroup});
}

Subject tabs(const QString &type)
{
    return among(type, {kPropertyTypeBeginTabGroup, kPropertyTypeTab, kPropertyTypeInteger,
                        kPropertyTypeTab, kPropertyTypeString, kPropertyTypeEndTabGroup});
}

Subject beginGroup()
{
    Subject subject = group(kPropertyTypeBeginGroup);
    subject.gestures.prepend({QStringLiteral("space bar"),
                              Occasion::User,
                              {kSet, kChanged},
                              [](Bench &bench) {
                                  const Hand::Target box = bench.control<QCheckBox>().data();
                                  Hand::focus(box);
                                  Hand::key(box, Qt::Key_Space, QStringLiteral(" "));
                              },
                              kCheckBoxStays});
    subject.gestures.prepend({QStringLiteral("click"),
                              Occasion::User,
                              {kSet, kChanged},
                              [](Bench &bench) {
                                  const Hand::Target box = bench.control<QCheckBox>().data();
                                  if (box)
                                      Hand::click(box, QPoint(8, box->height() / 2));
                              },
                              kCheckBoxStays});
    return subject;
}

Subject beginTabGroup()
{
    Subject subject = tabs(kPropertyTypeBeginTabGroup);
    subject.gestures.prepend(
        {QStringLiteral("keys"), Occasion::User, {kSet, kChanged}, [](Bench &bench) {
             const Hand::Target bar = bench.control<QTabBar>().data();
             Hand::focus(bar);
             Hand::key(bar, Qt::Key_Right);
             Hand::key(bar, Qt::Key_Left);
         }});
    subject.gestures.prepend(
        {QStringLiteral("clicks"), Occasion::User, {kSet, kChanged}, [](Bench &bench) {
             const auto bar = bench.control<QTabBar>();
             for (const int page : {1, 0}) {
                 if (bar)
                     Hand::click(bar.data(), bar->tabRect(page).center());
             }
         }});
    return subject;
}

Subject tab()
{
    Subject subject = tabs(kPropertyTypeTab);
    // The margin of the panel is the only place where the page is found: rows are compared unmapped.
    Gesture menu = menuGesture();
    menu.perform = [](Bench &bench) { Hand::pickFromMenu(bench.panel.data(), QPoint(1, 1)); };
    subject.gestures = {menu, refreshGesture()};
    return subject;
}

Subject endTabGroup()
{
    Subject subject = tabs(kPropertyTypeEndTabGroup);
    subject.hasWidget = false;
    subject.gestures = {refreshGesture()};
    subject.impossible =
        impossible(kNoWidget, Road::DelegateSetValue, Road::ValueChanged, Road::RunStarts,
                   Road::RunEnds, Road::KitSignal, Road::KitClient)
        + impossible(kNoWidget, Occasion::ContextMenu, Occasion::Dialog, Occasion::Timer);
    return subject;
}

Subject endGroup()
{
    Subject subject = group(kPropertyTypeEndGroup);
    subject.gestures.first().taps.clear(); // the menu does not come
    subject.impossible += impossible(kNoHeight, Road::DelegateSetValue, Road::ValueChanged)
                          + impossible(kNoHeight, Occasion::ContextMenu);
    return subject;
}

QVector<Subject> subjects()
{
    return {beginGroup(), endGroup(), beginTabGroup(), tab(), endTabGroup()};
}

} // namespace

TESSARK_CALLBACK_MATRIX("structure", subjects(), 492)
