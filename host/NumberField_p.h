#pragma once

#include "host/HeldValue_p.h"
#include "host/NumberExpression.h"
#include "host/PanelField_p.h"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

class QEvent;
class QKeyEvent;

namespace Tessark::PropertyHost {

class NumberNames;
class NumberPreview;

/**
 * Takes expressions in one number field.
 *
 * Between the line edit of the field and the validator that refuses letters and operators it sets one
 * that asks the other first. While an expression is in the line edit, the field does not follow what
 * is typed: it would take a number from the start of the text.
 */
class NumberField : public QObject
{
    Q_OBJECT

public:
    NumberField(const PanelField &field, const NumberNames &names, QObject *parent);
    ~NumberField() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Validator;
    class PressWatch;

    bool canExpress(const QString &text) const;
    bool isNoNumber(const QString &text) const;
    bool takes(const QString &text) const;
    void follow(bool isExpression);

    void textChanged();
    void setActive(bool isActive);
    void numberChanged();
    void restoreText();
    void noteHeld();

    bool handleEvent(QEvent *event);
    bool handleKey(QKeyEvent *event);
    void confirm();
    void leave();
    void pressedElsewhere();
    void cancel();
    void commit(double number);
    void end();
    void showNumber();

    NumberExpression evaluate() const;
    std::optional<double> valueOf(const QString &name) const;
    std::optional<double> heldNumber(const QAbstractSpinBox *spinBox) const;
    double current() const;
    QString resultText(double number) const;
    void showResult();
    void showPreview(const QString &text);
    void hidePreview();

    PanelField m_field;
    const NumberNames &m_names;
    QPointer<QLineEdit> m_lineEdit;
    std::unique_ptr<PressWatch> m_presses; // watches while the text is an expression
    std::unique_ptr<Validator> m_validator;
    QPointer<NumberPreview> m_preview;
    QString m_description; // the field's own, while a preview is shown

    std::optional<HeldValue> m_held;   // before the typing
    bool m_isEdited = false;           // by the user, while the text is changing
    bool m_isTyping = false;           // something was typed since m_held was noted
    bool m_wasEdited = false;          // ... and told to the host
    double m_typedNumber = 0;          // the field's number after the last key
    bool m_isActive = false;           // the text is an expression
    bool m_hasStoppedTracking = false; // of the field
    QString m_text;                    // the expression
    int m_cursor = 0;
};

} // namespace Tessark::PropertyHost
