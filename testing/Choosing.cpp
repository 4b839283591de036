#include "testing/Choosing_p.h"

#include "testing/Hand_p.h"
#include "testing/Reach_p.h"
#include "testing/Spelling_p.h"

#include <QComboBox>
#include <QListWidget>
#include <QPointer>
#include <QRadioButton>

#include <algorithm>

namespace Tessark::PropertyTest {

namespace {

const QString kDeleted = QStringLiteral("It was deleted meanwhile");

QString noChoice(const QString &text, const QStringList &choices)
{
    return QStringLiteral("There is no choice %1%2")
        .arg(quoted(text), possibilities(text, choices));
}

/// Moves the pointer to the entry first: without a movement, a click right after the one that opened
/// the list counts as its release. The list may scroll under the pointer.
void clickInPopup(QAbstractItemView *view, const QModelIndex &entry)
{
    constexpr int kFar = 30; // pixels
    constexpr int kMostMoves = 5;
    const QPointer<QWidget> viewport(view->viewport());
    view->scrollTo(entry, QAbstractItemView::PositionAtCenter);
    QPoint at = view->visualRect(entry).center();
    Pointer pointer(viewport, at);
    pointer.moveTo(pointer.position() + QPoint(kFar, 0));
    for (int i = 0; i < kMostMoves; ++i) {
        pointer.moveTo(viewport->mapTo(viewport->window(), at));
        settle();
        if (!viewport || view->visualRect(entry).center() == at)
            break;
        at = view->visualRect(entry).center();
    }
    pointer.press();
    pointer.release();
}

QString chooseInBox(QComboBox *comboBox, const QString &text)
{
    const int index = comboBox->findText(text);
    if (index < 0) {
        QStringList choices;
        for (int i = 0; i < comboBox->count(); ++i)
            choices.append(comboBox->itemText(i));
        return noChoice(text, choices);
    }
    QString obstacle = reach(comboBox);
    if (!obstacle.isEmpty())
        return obstacle;
    const QPointer<QComboBox> box(comboBox);
    click(comboBox, comboBox->rect().center());
    if (!box || !box->view()->isVisible())
        return box ? QStringLiteral("Its list does not open") : kDeleted;
    QAbstractItemView *const view = box->view();
    const QModelIndex entry = box->model()->index(index, box->modelColumn(), box->rootModelIndex());
    clickInPopup(view, entry);
    if (!box)
        return kDeleted;
    if (box->view()->isVisible())
        box->hidePopup();
    return box->currentText() == text
               ? QString()
               : QStringLiteral("It shows %1 afterwards").arg(quoted(box->currentText()));
}

QString chooseButton(const QList<QRadioButton *> &buttons, const QString &text)
{
    const auto found =
        std::find_if(buttons.begin(), buttons.end(),
                     [&](const QRadioButton *button) { return button->text() == text; });
    if (found == buttons.end()) {
        QStringList choices;
        for (const QRadioButton *button : buttons)
            choices.append(button->text());
        return noChoice(text, choices);
    }
    QString obstacle = reach(*found);
    if (!obstacle.isEmpty())
        return obstacle;
    const QPointer<QRadioButton> button(*found);
    click(button, clickPoint(button));
    if (!button)
        return kDeleted;
    return button->isChecked() ? QString() : QStringLiteral("It is not checked afterwards");
}

QString chooseItem(QListWidget *listWidget, const QString &text)
{
    const auto items = listWidget->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (items.isEmpty()) {
        QStringList choices;
        for (int i = 0; i < listWidget->count(); ++i)
            choices.append(listWidget->item(i)->text());
        return noChoice(text, choices);
    }
    QString obstacle = reach(listWidget->viewport());
    if (!obstacle.isEmpty())
        return obstacle;
    const QPointer<QListWidget> list(listWidget);
    list->scrollToItem(items.first());
    click(list->viewport(), list->visualItemRect(items.first()).center());
    if (!list)
        return kDeleted;
    const QListWidgetItem *const current = list->currentItem();
    return current && current->text() == text
               ? QString()
               : QStringLiteral("It is not the current one afterwards");
}

} // namespace

QString choose(QWidget *field, const QString &text)
{
    auto *const whole = qobject_cast<QComboBox *>(field);
    if (QComboBox *const box = whole ? whole : field->findChild<QComboBox *>())
        return chooseInBox(box, text);
    if (auto *const list = qobject_cast<QListWidget *>(field))
        return chooseItem(list, text);
    const auto buttons = field->findChildren<QRadioButton *>();
    return buttons.isEmpty() ? QStringLiteral("It offers no choices") : chooseButton(buttons, text);
}

} // namespace Tessark::PropertyTest
