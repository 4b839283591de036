#pragma once

#include "host/RelativeEdit.h"

#include <QDialog>

class QDialogButtonBox;
class QLineEdit;

namespace Tessark::PropertyHost {

/// Asks for the number, or the numbers, by which each object's value of a row is to be changed. It
/// deletes itself when it is closed.
class OperandDialog final : public QDialog
{
    Q_OBJECT

public:
    /// operation is Add or Multiply. The property has to live as long as parent.
    OperandDialog(const PropertyUI::Property &property, RelativeOperation operation,
                  QWidget *parent);

Q_SIGNALS:
    /// text is one that parseRelativeEdit() takes.
    void operationChosen(const QString &text);

private:
    QString text() const;
    void textEdited();

    const PropertyUI::Property &m_property;
    RelativeOperation m_operation;
    QLineEdit *m_entry;
    QDialogButtonBox *m_buttons;
};

} // namespace Tessark::PropertyHost
