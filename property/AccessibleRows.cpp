#include "property/AccessibleRows_p.h"

#include "property/PropertyEditorPanel.h"
#include "property/SpokenNumber_p.h"
#include "property/SpokenRow_p.h"
#include "property/SpokenText_p.h"

#include <QAccessible>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QPointer>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace Tessark::PropertyUI {

namespace {

/// The panel itself takes the focus too. The title of a window says what it is.
SpokenControl spokenPanel(PropertyEditorPanel *panel)
{
    const QString name = panel->isWindow() ? QString() : PropertyEditorPanel::tr("Properties");
    return {panel, name, QString(), QString()};
}

/// A host names a widget that leaves the focus to its part; that part is what is read out.
QString nameFor(const SpokenControl &spoken)
{
    const QWidget *const whole = spoken.control->parentWidget();
    const bool isPart =
        whole && whole->focusProxy() == spoken.control && whole->focusPolicy() == Qt::NoFocus;
    return isPart && !whole->accessibleName().isEmpty() ? whole->accessibleName() : spoken.name;
}

/// What says something else than its name, as a combo box may say what it shows, tells the name here.
QString descriptionFor(const SpokenControl &spoken)
{
    const QString name = spoken.control->accessibleName();
    const QAccessibleInterface *const accessible =
        QAccessible::queryAccessibleInterface(spoken.control);
    const bool isSaid =
        name.isEmpty() || !accessible || accessible->text(QAccessible::Name) == name;
    return isSaid ? spoken.description : joinedParts({name, spoken.description});
}

} // namespace

/// Knows whether assistive technology listens, and tells all panels when it begins to.
class AccessibleRows::Listening final : public QAccessible::ActivationObserver
{
public:
    Listening()
        : m_isActive(QAccessible::isActive())
    {
        QAccessible::installActivationObserver(this);
    }

    ~Listening() override { QAccessible::removeActivationObserver(this); }

    bool isActive() const { return m_isActive; }

    void accessibilityActiveChanged(bool active) override
    {
        m_isActive = active;
        if (!active)
            return;
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (auto *const panel = qobject_cast<PropertyEditorPanel *>(widget))
                refresh(panel);
        }
    }

private:
    bool m_isActive;
};

const AccessibleRows::Listening &AccessibleRows::listening()
{
    static const Listening s_listening;
    return s_listening;
}

void AccessibleRows::refresh(PropertyEditorPanel *panel)
{
    if (!listening().isActive())
        return;
    auto *rows = panel->findChild<AccessibleRows *>(QString(), Qt::FindDirectChildrenOnly);
    if (!rows)
        rows = new AccessibleRows(panel);
    rows->updateSoon();
}

AccessibleRows::AccessibleRows(PropertyEditorPanel *panel)
    : QObject(panel)
{
    panel->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { updateFor(now); });
}

AccessibleRows::~AccessibleRows() = default;

bool AccessibleRows::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (listening().isActive() && (type == QEvent::LayoutRequest || type == QEvent::LanguageChange))
        updateSoon();
    return false;
}

/// Null while the panel goes.
PropertyEditorPanel *AccessibleRows::panel() const
{
    return qobject_cast<PropertyEditorPanel *>(parent());
}

/// Not now: Qt keeps what it takes a widget for while that is being made, and whoever hears of a new
/// name may delete the panel.
void AccessibleRows::updateSoon()
{
    if (!std::exchange(m_updatesSoon, true))
        QMetaObject::invokeMethod(this, &AccessibleRows::update, Qt::QueuedConnection);
}

void AccessibleRows::update()
{
    m_updatesSoon = false;
    if (!panel())
        return;
    const QVector<SpokenRow> rows = spokenRows(*panel());
    const RowWidgets widgets = widgetsOf(rows);
    QVector<SpokenControl> controls = {spokenPanel(panel())};
    for (const SpokenRow &row : rows)
        controls += spokenControls(row, widgets);

    QHash<const QWidget *, Given> given; // without those of controls that are gone
    for (const SpokenControl &spoken : std::as_const(controls)) {
        if (!m_given.contains(spoken.control))
            followTyping(spoken.control);
        given.insert(spoken.control, m_given.value(spoken.control));
    }
    m_given = given;
    give(controls);
}

void AccessibleRows::followTyping(QWidget *control)
{
    if (auto *const spinBox = qobject_cast<QSpinBox *>(control))
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), this,
                [spinBox](int number) { tellNumber(spinBox, number); });
    else if (auto *const fractions = qobject_cast<QDoubleSpinBox *>(control))
        connect(fractions, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                [fractions](double number) { tellNumber(fractions, number); });
}

/// A control that gets the focus is what is read out next.
void AccessibleRows::updateFor(const QWidget *focused)
{
    if (!focused || !listening().isActive() || !panel() || !panel()->isAncestorOf(focused))
        return;
    const QVector<SpokenRow> rows = spokenRows(*panel());
    const auto holdsIt = [focused](const SpokenRow &row) {
        return row.widget && (row.widget == focused || row.widget->isAncestorOf(focused));
    };
    // The last one: the rows of a tab page come after the tab widget.
    const auto row = std::find_if(rows.crbegin(), rows.crend(), holdsIt);
    if (row != rows.crend())
        give(spokenControls(*row, widgetsOf(rows)));
}

void AccessibleRows::give(const QVector<SpokenControl> &controls)
{
    const QPointer<AccessibleRows> self(this);
    for (const SpokenControl &spoken : controls) {
        if (self && spoken.control)
            give(spoken);
    }
}

void AccessibleRows::give(const SpokenControl &spoken)
{
    const QPointer<QWidget> control = spoken.control;
    const QString name = nameFor(spoken);
    const QString before = std::exchange(m_given[control].name, name);
    const QString current = control->accessibleName();
    const bool isFree = current.isEmpty() || current == before || current == spoken.ownName;
    const QPointer<AccessibleRows> self(this);
    if (isFree && current != name)
        control->setAccessibleName(name);
    if (self && control)
        describe(control, descriptionFor(spoken));
}

void AccessibleRows::describe(QWidget *control, const QString &description)
{
    const QString before = std::exchange(m_given[control].description, description);
    const QString current = control->accessibleDescription();
    const bool isFree = current.isEmpty() || current == before;
    if (isFree && current != description)
        control->setAccessibleDescription(description);
}

} // namespace Tessark::PropertyUI
