#include "host/NumberFieldWidths_p.h"

#include <property/PropertyEditorPanel.h>
#include <property/PropertyLayout.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHash>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

constexpr int kLongestText = 18; // characters; what a spin box itself makes room for
constexpr int kTextMargins = 5; // pixels that a line edit keeps free around a text, cursor included

bool isFixed(const QWidget &widget)
{
    return widget.minimumSize() == widget.maximumSize();
}

bool isWholeRow(const QWidget &widget)
{
    return widget.parentWidget() && qobject_cast<PropertyLayout *>(widget.parentWidget()->layout());
}

/// Of the number in such a field, with all of its decimals.
int textWidth(const QDoubleSpinBox &box, double number)
{
    const QString text = box.locale().toString(number, 'f', box.decimals()).left(kLongestText);
    return box.fontMetrics().horizontalAdvance(box.prefix() + text + box.suffix());
}

/// What a spin box adds to the width of its text.
int frameWidth(const QDoubleSpinBox &box)
{
    QStyleOptionSpinBox option;
    option.initFrom(&box);
    option.frame = box.hasFrame();
    option.buttonSymbols = box.buttonSymbols();
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.subControls = QStyle::SC_All;
    option.rect = QRect(QPoint(), box.maximumSize());
    const QRect field =
        box.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, &box);
    return option.rect.width() - field.width() + kTextMargins;
}

/// Of a field that is the only one of its row, the page that the row lies on: such fields stand below one
/// another there. Null for others.
const QWidget *pageOfOnlyField(const QAbstractSpinBox &box)
{
    const QWidget *row = box.parentWidget();
    while (row && !isWholeRow(*row))
        row = row->parentWidget();
    const bool isOnly = row && row->findChildren<QAbstractSpinBox *>().size() == 1;
    return isOnly ? row->parentWidget() : nullptr;
}

/// A box of whole numbers has room for its range by itself.
int wantedWidth(const QAbstractSpinBox &field)
{
    const auto *const box = qobject_cast<const QDoubleSpinBox *>(&field);
    return box ? frameWidth(*box)
                     + std::max(textWidth(*box, box->minimum()), textWidth(*box, box->maximum()))
               : field.sizeHint().width();
}

void setWidth(QAbstractSpinBox &field, int width)
{
    if (qobject_cast<const QDoubleSpinBox *>(&field))
        field.setFixedSize(width, field.sizeHint().height());
    else
        field.setMinimumWidth(width);
}

} // namespace

NumberFieldWidths::NumberFieldWidths(PropertyEditorPanel *panel)
    : QObject(panel)
    , m_panel(panel)
{
    const QList<QAbstractSpinBox *> boxes = panel->findChildren<QAbstractSpinBox *>();
    for (QAbstractSpinBox *const box : boxes) {
        const bool isWhole = qobject_cast<const QSpinBox *>(box);
        const QWidget *const page = pageOfOnlyField(*box);
        if (isWholeRow(*box) || isFixed(*box) == isWhole || (isWhole && !page))
            continue;
        m_fields.push_back({box, page, box->minimumWidth()});
        box->installEventFilter(this);
    }
    watchRuns(*panel);
    update();
}

void NumberFieldWidths::updateLater()
{
    m_mayShrink = true;
    m_isPending = true;
    schedule();
}

void NumberFieldWidths::growLater()
{
    m_isPending = true;
    schedule();
}

bool NumberFieldWidths::eventFilter(QObject *watched, QEvent *event)
{
    // The field does not know of the change itself yet.
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateLater();
    return QObject::eventFilter(watched, event);
}

void NumberFieldWidths::watchRuns(const PropertyEditorPanel &panel)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (!editor)
            continue;
        connect(editor, &PropertyEditor::startInteractiveChange, this,
                [this, editor] { m_run = editor; });
        connect(editor, &PropertyEditor::endInteractiveChange, this, [this, editor] {
            if (m_run == editor)
                m_run = nullptr;
            if (m_isPending)
                schedule();
        });
    }
}

void NumberFieldWidths::schedule()
{
    if (std::exchange(m_isScheduled, true))
        return;
    QMetaObject::invokeMethod(this, &NumberFieldWidths::updateUnlessAtWork, Qt::QueuedConnection);
}

void NumberFieldWidths::updateUnlessAtWork()
{
    m_isScheduled = false;
    if (m_isPending && !isUserAtWork())
        update();
}

/// A field that just has the focus does not hold anything up.
bool NumberFieldWidths::isUserAtWork() const
{
    const QWidget *const focused = QApplication::focusWidget();
    const auto *const line = m_run && focused && m_panel->isAncestorOf(focused)
                                 ? focused->findChild<QLineEdit *>()
                                 : nullptr;
    const bool isDragging = m_run && QApplication::mouseButtons() != Qt::NoButton;
    return isDragging || (line && line->isModified());
}

void NumberFieldWidths::update()
{
    m_isPending = false;
    const bool mayShrink = std::exchange(m_mayShrink, false);
    QHash<const QWidget *, int> widest; // by page
    for (Field &field : m_fields) {
        if (!field.box)
            continue;
        field.box->ensurePolished();
        field.width =
            std::max({field.smallest, wantedWidth(*field.box), mayShrink ? 0 : field.width});
        if (field.page)
            widest[field.page] = std::max(widest.value(field.page), field.width);
    }
    for (const Field &field : m_fields) {
        if (field.box)
            setWidth(*field.box, widest.value(field.page, field.width));
    }
}

} // namespace Tessark::PropertyHost
