#pragma once

#include "testing/PanelMap_p.h"
#include "testing/RowParts_p.h"

#include <property/PropertyEditorPanel.h>

#include <QPointer>
#include <QString>

#include <functional>

namespace Tessark::PropertyTest {

/// A row, or a part of one, as it was found.
struct DriverTarget
{
    QPointer<PropertyUI::PropertyEditorPanel> panel;
    PanelRow row;
    QString part; // empty for the row as a whole

    RowParts parts() const { return RowParts(row); }
};

/// Does what a PanelDriver is asked for. Texts that are returned say what was in the way; an empty one
/// that nothing was.
class PanelUser
{
public:
    enum class Aim { Exact, Nearest };

    explicit PanelUser(QWidget *widget)
        : m_widget(widget)
    {
    }

    /// Null when there is none now.
    PropertyUI::PropertyEditorPanel *panel() const;

    /// Finds a row by its name, or one by what stands before the last dot and a part of it by the rest.
    QString find(const QString &name, DriverTarget *target) const;

    /// Finds a group or a tab by its label or name.
    QString findMarker(const QString &type, const QString &title, DriverTarget *target) const;

    QString drag(const QString &name, double number, Aim aim) const;
    QString type(const QString &name, const QString &text, bool withReturn) const;
    QString step(const QString &name, int steps) const;
    QString wheel(const QString &name, int notches) const;
    QString check(const QString &name, bool checked) const;
    QString press(const QString &name) const;
    QString fold(const QString &title, bool open) const;
    QString showTab(const QString &title) const;

    /// Does something in the field of a row.
    QString inRow(const QString &name, const std::function<QString(QWidget *)> &act) const;

    bool isRevealing = true;
    int dragSteps = 3;

private:
    QString noPanel() const;
    template <typename Find>
    QString reveal(Find find, DriverTarget *target) const;
    QString takeRow(const QString &name, DriverTarget *target) const;
    QString takeMarker(const QString &type, const QString &title, DriverTarget *target) const;
    QString lost(const DriverTarget &target) const;
    QString moveHandle(const DriverTarget &target, const NumberPart &part, int position) const;

    QPointer<QWidget> m_widget;
};

} // namespace Tessark::PropertyTest
