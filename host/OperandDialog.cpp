#include "host/OperandDialog_p.h"

#include <property/Property.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

OperandDialog::OperandDialog(const Property &property, RelativeOperation operation, QWidget *parent)
    : QDialog(parent)
    , m_property(property)
    , m_operation(operation)
    , m_entry(new QLineEdit)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setAttribute(Qt::WA_DeleteOnClose);
    const bool isAddition = operation == RelativeOperation::Add;
    setWindowTitle(isAddition ? tr("Add to Each") : tr("Multiply Each"));
    const QString question = isAddition ? tr("Add to %1 of each selected object:")
                                        : tr("Multiply %1 of each selected object by:");
    auto *const label = new QLabel(question.arg(property.label));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(m_entry);
    m_entry->setAccessibleName(label->text());
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_entry);
    layout->addWidget(m_buttons);
    textEdited();
    connect(m_entry, &QLineEdit::textChanged, this, &OperandDialog::textEdited);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this] { Q_EMIT operationChosen(text()); });
}

QString OperandDialog::text() const
{
    const QString sign =
        m_operation == RelativeOperation::Add ? QStringLiteral("+=") : QStringLiteral("*=");
    return sign + m_entry->text();
}

void OperandDialog::textEdited()
{
    m_buttons->button(QDialogButtonBox::Ok)
        ->setEnabled(parseRelativeEdit(text(), m_property).has_value());
}

} // namespace Tessark::PropertyHost
