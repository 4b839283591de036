#include "property/editors/TextPropertyEditor.h"

#include "property/EditorHelpers_p.h"

#include <QFont>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace Tessark::PropertyUI {

namespace {

constexpr int kMinimumHeight = 400; // pixels
constexpr int kPointSize = 16;

} // namespace

PropertyEditor *TextPropertyEditor::Factory(Property *property)
{
    return new TextPropertyEditor(property);
}

TextPropertyEditor::TextPropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

TextPropertyEditor::~TextPropertyEditor() = default;

void TextPropertyEditor::setValue(const QVariant &value)
{
    setQuietly(m_textEdit, &QPlainTextEdit::setPlainText, value.toString());
}

QVariant TextPropertyEditor::value() const
{
    return m_textEdit ? m_textEdit->document()->toPlainText() : QString();
}

QWidget *TextPropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        // No signal is connected, on purpose: see the class comment.
        m_textEdit = new QPlainTextEdit;
        m_widget = m_textEdit;
        m_textEdit->setMinimumHeight(kMinimumHeight);
        QFont font(QStringLiteral("monospace"), kPointSize);
        font.setFixedPitch(true);
        m_textEdit->setFont(font); // becomes the document's default font as well
    }
    return m_widget;
}

} // namespace Tessark::PropertyUI
