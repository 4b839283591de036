#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QAbstractItemView;
class QLineEdit;
class QSlider;
class QWidget;

namespace Tessark::PropertyHost {

/// While it lives, the controls of a mixed row are drawn without a value: a dash where a number would
/// be, a choice that is none, a bar where a button would be chosen, a groove without handle, words in a
/// list without selection, hatching over what else shows a value. What the controls hold, and how they take
/// mouse and keys, stays as it is.
///
/// A field that shows something has a number of everyone's, or one that the user types, and is drawn as
/// ever, with its slider; unless nobody blanks the fields of the row, which the dynamic property "mixed"
/// of its widget tells.
class MixedPainter final : public QObject
{
    Q_OBJECT

public:
    explicit MixedPainter(QWidget *field);
    ~MixedPainter() override;

    /// Draws the row again.
    void update();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchControls();
    void watch(QWidget *widget);
    void watchList(QAbstractItemView *list);
    bool isBlanked() const;
    bool isAnyBlank() const;
    bool isAnyChosen() const;
    bool paintNumber(QLineEdit *line, QEvent *event);
    bool paintText(QLineEdit *line, QEvent *event);
    bool paintSlider(QSlider *slider);
    bool paintList(QWidget *viewport, QEvent *event);
    bool paintOther(QWidget *widget, QEvent *event);
    void paintByItself(QWidget *widget, QEvent *event);

    QPointer<QWidget> m_field;
    QVector<QPointer<QLineEdit>> m_numbers;
    QVector<QPointer<QSlider>> m_sliders;
    QVector<QPointer<QWidget>> m_watched;
    bool m_isPainting = false; // what the control draws by itself
};

} // namespace Tessark::PropertyHost
