#include "robustness/Hand.h"
#include "robustness/Subjects.h"

#include "core/DropAcceptingListWidget.h"
#include "property/editors/TexturePropertyEditor.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

const QString kDropped = QStringLiteral("droppedUrls");

QVector<Impossible> impossibleForAll()
{
    return impossible(kNoRuns, Road::RunStarts, Road::RunEnds)
           + impossible(kNoClient, Road::KitClient) + impossible(kNoDialog, Occasion::Dialog)
           + impossible(kNoTimer, Occasion::Timer);
}

const QString kDeletesWidget = QStringLiteral("deletes the widget");

/// The same gestures, where a host is to leave the deletion of the widget to the event loop.
QVector<Gesture> keepingWidget(QVector<Gesture> gestures, const QString &reason)
{
    for (Gesture &gesture : gestures)
        gesture.laterOnly = {{kDeletesWidget, reason}};
    return gestures;
}

/// A click on the mark of a button, or on its text.
QVector<Gesture> buttonGestures(int index)
{
    return {
        {QStringLiteral("click"),
         Occasion::User,
         {kSet, kChanged},
         [index](Bench &bench) {
             const Hand::Target button = bench.control<QAbstractButton>(index).data();
             if (button)
                 Hand::click(button, QPoint(8, button->height() / 2));
         }},
        {QStringLiteral("space bar"),
         Occasion::User,
         {kSet, kChanged},
         [index](Bench &bench) {
             const Hand::Target button = bench.control<QAbstractButton>(index).data();
             Hand::focus(button);
             Hand::key(button, Qt::Key_Space, QStringLiteral(" "));
         }},
    };
}

Subject boolean()
{
    Subject subject = subjectOf(QStringLiteral("bool"), kPropertyTypeBoolean, {false, true});
    subject.gestures =
        keepingWidget(buttonGestures(0),
                      QStringLiteral("QCheckBox goes on with itself after toggled()"))
        + commonGestures();
    subject.impossible = impossibleForAll() + impossible(kNoKit, Road::KitSignal);
    return subject;
}

Subject action()
{
    Subject subject = subjectOf(QStringLiteral("action"), kPropertyTypeAction, {},
                                [](Property &property) { property.setDefaultValue(1); });
    subject.gestures = buttonGestures(0) + commonGestures();
    subject.impossible = impossibleForAll() + impossible(kNoKit, Road::KitSignal);
    return subject;
}

void describeChoices(Property &property)
{
    QVariantList texts;
    for (int i = 0; i < 9; ++i)
        texts.append(QStringLiteral("Choice %1").arg(i));
    property.setHint(kPropertyHintDisplayValues, texts);
}

QVector<Gesture> comboBoxGestures()
{
    return {
        {QStringLiteral("keys"),
         Occasion::User,
         {kSet, kChanged},
         [](Bench &bench) {
             const Hand::Target box = bench.control<QComboBox>().data();
             Hand::focus(box);
             Hand::key(box, Qt::Key_Down);
             Hand::key(box, Qt::Key_Down);
         }},
        {QStringLiteral("mouse wheel"),
         Occasion::User,
         {kSet, kChanged},
         [](Bench &bench) { Hand::wheel(bench.control<QComboBox>().data()); }},
        {QStringLiteral("list"),
         Occasion::User,
         {kSet, kChanged},
         [](Bench &bench) {
             const auto box = bench.control<QComboBox>();
             if (!box)
                 return;
             box->showPopup();
             const Hand::Target list = box->view();
             Hand::key(list, Qt::Key_Down);
             Hand::key(list, Qt::Key_Return);
         }},
    };
}

Subject comboBox()
{
    Subject subject =
        subjectOf(QStringLiteral("combo box"), kPropertyTypeEnumeration, {4, 5}, describeChoices);
    subject.gestures =
        keepingWidget(comboBoxGestures(),
                      QStringLiteral("QComboBox goes on with itself after currentIndexChanged()"))
        + commonGestures();
    subject.impossible = impossibleForAll() + impossible(kNoKit, Road::KitSignal);
    return subject;
}

Subject radioButtons()
{
    Subject subject = subjectOf(QStringLiteral("radio buttons"), kPropertyTypeEnumeration, {1, 2},
                                [](Property &property) {
                                    describeChoices(property);
                                    property.setHint(kPropertyHintWidget, kWidgetTypeRadioButtons);
                                });
    subject.gestures = buttonGestures(0) + commonGestures();
    return subject;
}

QVector<Gesture> rowGestures()
{
    return {
        {QStringLiteral("keys"),
         Occasion::User,
         {kSet, kChanged},
         [](Bench &bench) {
             const Hand::Target list = bench.control<QListWidget>().data();
             Hand::focus(list);
             Hand::key(list, Qt::Key_Down);
             Hand::key(list, Qt::Key_Down);
         }},
        {QStringLiteral("clicks"),
         Occasion::User,
         {kSet, kChanged},
         [](Bench &bench) {
             const auto list = bench.control<QListWidget>();
             for (const int row : {0, 2, 1}) {
                 if (!list)
                     return;
                 const QPoint middle = list->visualItemRect(list->item(row)).center();
                 Hand::click(list->viewport(), middle);
             }
         }},
    };
}

Gesture dropGesture()
{
    return {QStringLiteral("drop"), Occasion::User, {kDropped}, [](Bench &bench) {
                const auto list = bench.control<QListWidget>();
                if (list)
                    Hand::drop(list->viewport(), QStringLiteral("/a.png"));
            }};
}

Subject texture()
{
    TextureChoice choice;
    choice.name = QStringLiteral("b");
    Subject subject = subjectOf(
        QStringLiteral("texture"), kPropertyTypeTexture, {},
        [choice](Property &property) { property.setDefaultValue(QVariant::fromValue(choice)); });
    subject.isSame = [](const QVariant &left, const QVariant &right) {
        return left.value<TextureChoice>().name == right.value<TextureChoice>().name;
    };
    subject.prepare = [](Bench &bench) {
        QVector<TextureChoice> textures(12);
        for (TextureChoice &each : textures)
            each.name = QChar(int('a') + int(&each - textures.data()));
        auto *const editor = qobject_cast<TexturePropertyEditor *>(bench.editor());
        editor->setTextures(textures);
        editor->setAcceptUrlsDrops(true);
    };
    const auto find = [](const Bench &bench) {
        return bench.control<UI::DropAcceptingListWidget>().data();
    };
    subject.kitTaps = {kitTap(kDropped, find, &UI::DropAcceptingListWidget::droppedUrls)};
    subject.gestures =
        keepingWidget(rowGestures(),
                      QStringLiteral("QListWidget goes on with itself after currentRowChanged()"))
        + QVector<Gesture>{dropGesture()} + commonGestures();
    subject.impossible = impossibleForAll();
    return subject;
}

QVector<Subject> subjects()
{
    return {boolean(), action(), comboBox(), radioButtons(), texture()};
}

} // namespace

TESSARK_CALLBACK_MATRIX("choices", subjects(), 988)
