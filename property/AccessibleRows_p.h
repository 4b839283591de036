#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QVector>

class QWidget;

namespace Tessark::PropertyUI {

class PropertyEditorPanel;
struct SpokenControl;

/**
 * Gives the controls of a panel accessible names and descriptions while assistive technology
 * listens; before that there is none, and nothing to pay for. They follow labels, languages and
 * bounds. What a host has set stays.
 */
class AccessibleRows final : public QObject
{
    Q_OBJECT

public:
    /// To be called by each panel when its rows are there, and when their bounds may have changed.
    static void refresh(PropertyEditorPanel *panel);

    ~AccessibleRows() override;

    /// Sees labels change by what comes after: a new language or a new layout of the panel.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Listening;

    struct Given
    {
        QString name;
        QString description;
    };

    explicit AccessibleRows(PropertyEditorPanel *panel);

    static const Listening &listening();
    PropertyEditorPanel *panel() const;
    void updateSoon();
    void update();
    void followTyping(QWidget *control);
    void updateFor(const QWidget *focused);
    void give(const QVector<SpokenControl> &controls);
    void give(const SpokenControl &spoken);
    void describe(QWidget *control, const QString &description);

    QHash<const QWidget *, Given> m_given; // what is not this is a host's
    bool m_updatesSoon = false;
};

} // namespace Tessark::PropertyUI
