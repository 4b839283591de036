#include "property/editors/TexturePropertyEditor.h"

#include "core/DropAcceptingListWidget.h"
#include "property/EditorHelpers_p.h"
#include "property/ValueCodecs.h"

#include <algorithm>
#include <utility>

namespace Tessark::PropertyUI {

namespace {

constexpr int kListHeight = 128;
constexpr QSize kIconSize(32, 32);

TextureChoice choiceOf(const QVariant &value)
{
    if (value.userType() == QMetaType::QString)
        return TextureChoice_fromString(value.toString());
    return value.value<TextureChoice>();
}

} // namespace

PropertyEditor *TexturePropertyEditor::Factory(Property *property)
{
    return new TexturePropertyEditor(property);
}

TexturePropertyEditor::TexturePropertyEditor(Property *property)
    : PropertyEditor(property)
{
}

TexturePropertyEditor::~TexturePropertyEditor() = default;

void TexturePropertyEditor::setValue(const QVariant &value)
{
    // The current index stays: it follows the user's selection only.
    showRow(choiceOf(value).name);
}

QVariant TexturePropertyEditor::value() const
{
    return hasCurrent() ? QVariant::fromValue(m_textures.at(m_currentIndex)) : QVariant();
}

QWidget *TexturePropertyEditor::widget(PropertyEditorContext *)
{
    if (buildsNow()) {
        m_list = new UI::DropAcceptingListWidget;
        m_widget = m_list;
        m_list->setFixedHeight(kListHeight);
        m_list->setIconSize(kIconSize);
        m_list->setSelectionMode(QAbstractItemView::SingleSelection);
        connect(m_list, &UI::DropAcceptingListWidget::droppedUrls, this,
                &TexturePropertyEditor::droppedUrls);
        connect(m_list, &QListWidget::currentRowChanged, this,
                &TexturePropertyEditor::listSelectionChanged);
    }
    return m_widget;
}

void TexturePropertyEditor::setTextures(QVector<TextureChoice> textures)
{
    const QString previous = hasCurrent() ? m_textures.at(m_currentIndex).name : QString();
    m_textures = std::move(textures);
    m_currentIndex = -1;
    fillList();
    // Deliberate: the index stays -1 even where the row is shown again, so that the value counts as
    // picked only once the user has picked it from these textures.
    const bool shown = showRow(previous);
    if (!previous.isEmpty() && !shown)
        Q_EMIT valueChanged();
}

int TexturePropertyEditor::texturesCount() const
{
    return static_cast<int>(m_textures.size());
}

bool TexturePropertyEditor::acceptUrlsDrops() const
{
    return m_list && m_list->acceptUrlsDrops();
}

void TexturePropertyEditor::setAcceptUrlsDrops(bool accept)
{
    if (m_list)
        m_list->setAcceptUrlsDrops(accept);
}

void TexturePropertyEditor::listSelectionChanged(int index)
{
    m_currentIndex = index;
    Q_EMIT valueChanged();
}

bool TexturePropertyEditor::hasCurrent() const
{
    return m_currentIndex >= 0 && m_currentIndex < texturesCount();
}

void TexturePropertyEditor::fillList()
{
    if (!m_list)
        return;
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const TextureChoice &texture : std::as_const(m_textures)) {
        auto *const item = new QListWidgetItem(texture.icon, texture.name);
        item->setSizeHint(kIconSize);
        m_list->addItem(item);
    }
}

/// Makes the row of the first texture of that name current, silently. Returns false when there is
/// none, or no list, or when the name is empty.
bool TexturePropertyEditor::showRow(const QString &name)
{
    if (!m_list || name.isEmpty())
        return false;
    const auto hasName = [&name](const TextureChoice &texture) { return texture.name == name; };
    const auto found = std::find_if(m_textures.cbegin(), m_textures.cend(), hasName);
    if (found == m_textures.cend())
        return false;
    const QSignalBlocker blocker(m_list);
    m_list->setCurrentRow(static_cast<int>(found - m_textures.cbegin()),
                          QItemSelectionModel::ClearAndSelect);
    return true;
}

} // namespace Tessark::PropertyUI
