#include "TextureChoices.h"

#include <host/HostHints.h>
#include <host/ValueJson.h>
#include <property/PropertyUI.h>
#include <property/ValueCodecs.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QDir>
#include <QJsonValue>
#include <QListWidget>

#include <algorithm>

namespace Tessark::PropertyPanel {

using PropertyUI::PropertyEditor;
using PropertyUI::TextureChoice;
using PropertyUI::TexturePropertyEditor;

namespace {

QListWidget *listOf(TexturePropertyEditor *editor)
{
    return qobject_cast<QListWidget *>(editor->widget(nullptr));
}

/// The index of the texture of that name, or -1.
int indexOf(const QVector<TextureChoice> &textures, const QString &name)
{
    const auto hasName = [&name](const TextureChoice &texture) { return texture.name == name; };
    const auto found = std::find_if(textures.cbegin(), textures.cend(), hasName);
    return found == textures.cend() ? -1 : static_cast<int>(found - textures.cbegin());
}

TextureChoice textureOf(const QVariant &value)
{
    return value.userType() == QMetaType::QString
               ? PropertyUI::TextureChoice_fromString(value.toString())
               : value.value<TextureChoice>();
}

/// Adds the texture unless it has no name or its name is there; gives the index of the name.
int addOnce(QVector<TextureChoice> &textures, const TextureChoice &texture)
{
    const int index = indexOf(textures, texture.name);
    if (index >= 0 || texture.name.isEmpty())
        return index;
    textures.append(texture);
    return static_cast<int>(textures.size()) - 1;
}

} // namespace

TextureChoices::TextureChoices(const PropertyUI::PropertyEditorPanel &panel,
                               PropertyUI::IPropertyEditorDelegate *delegate, const QString &folder,
                               QObject *parent)
    : QObject(parent)
    , m_delegate(delegate)
    , m_folder(folder)
{
    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, PropertyUI::kPropertyTypeTexture);
    for (PropertyEditor *editor : std::as_const(editors)) {
        if (auto *const texture = qobject_cast<TexturePropertyEditor *>(editor))
            m_rows.push_back({texture, {}});
    }
    for (Row &row : m_rows)
        fill(row);
}

TextureChoices::~TextureChoices() = default;

void TextureChoices::refresh()
{
    for (Row &row : m_rows) {
        if (row.editor)
            show(row);
    }
}

void TextureChoices::fill(Row &row)
{
    const PropertyUI::Property *const property = row.editor->editedProperty();
    const QVariantList offered = property->hint(PropertyHost::kHostHintTextures).toList();
    for (const QVariant &texture : offered)
        addOnce(row.textures, textureOf(texture));
    addOnce(row.textures, textureOf(property->defaultValue));
    show(row);
    // A path says most at its ends.
    listOf(row.editor)->setTextElideMode(Qt::ElideMiddle);
    row.editor->setAcceptUrlsDrops(true);
    // After the panel, which has told the delegate by then.
    connect(row.editor, &PropertyEditor::valueChanged, this,
            [this, &row] { takeShownTexture(row); });
    connect(row.editor, &TexturePropertyEditor::droppedUrls, this,
            [this, &row](const QStringList &paths) { addFiles(row, paths); });
}

/// Shows the delegate's value, and makes the editor forget what the user picked before, which it
/// would go on to call its value.
void TextureChoices::show(Row &row)
{
    const TextureChoice shown = value(row);
    addOnce(row.textures, shown);
    row.editor->setTextures(row.textures);
    // The first call has selected the pick once more; without a pick nothing is.
    if (shown.name.isEmpty())
        row.editor->setTextures(row.textures);
    else
        row.editor->setValue(QVariant::fromValue(shown));
}

void TextureChoices::takeShownTexture(Row &row)
{
    // The editor's value follows the user's picks alone: once it shows its default, it still has the
    // value before.
    const int index = listOf(row.editor)->currentRow();
    if (index < 0 || index >= row.textures.size())
        return;
    const TextureChoice shown = row.textures.at(index);
    if (shown.name == value(row).name)
        return;
    const QPointer<TextureChoices> self(this);
    m_delegate->setValue(row.editor->editedProperty(), QVariant::fromValue(shown),
                         PropertyUI::IPropertyEditorDelegate::NewChange);
    if (self && row.editor)
        show(row);
}

void TextureChoices::addFiles(Row &row, const QStringList &paths)
{
    QStringList problems;
    int last = -1;
    for (const QString &path : paths) {
        QString problem;
        const auto texture = PropertyHost::valueFromJson(*row.editor->editedProperty(),
                                                         nameForFile(path), problem, m_folder);
        if (texture)
            last = addOnce(row.textures, textureOf(*texture));
        else
            problems.append(problem);
    }
    show(row);
    QListWidget *const list = listOf(row.editor);
    if (last >= 0)
        list->scrollToItem(list->item(last));
    Q_EMIT filesDropped(problems);
}

TextureChoice TextureChoices::value(const Row &row) const
{
    return textureOf(m_delegate->value(row.editor->editedProperty()));
}

QString TextureChoices::nameForFile(const QString &path) const
{
    const QString relative = QDir(m_folder).relativeFilePath(path);
    const bool isOutside = QDir::isAbsolutePath(relative) || relative == QLatin1String("..")
                           || relative.startsWith(QLatin1String("../"));
    return isOutside ? path : relative;
}

} // namespace Tessark::PropertyPanel
