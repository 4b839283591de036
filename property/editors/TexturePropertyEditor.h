#pragma once

#include "property/PropertyEditor.h"
#include "property/TextureChoice.h"

#include <QPointer>
#include <QStringList>

namespace Tessark::UI {
class DropAcceptingListWidget;
}

namespace Tessark::PropertyUI {

/**
 * Edits a "texture" property: one choice of a list of icons with names, which the host sets.
 *
 * Value: TextureChoice, the one that the user picked last since the host set the textures, or an
 * invalid variant. It follows the user's selection only: setValue() shows a texture, silently, but
 * is not read back. No hints are read. Each pick of another row emits valueChanged() once; there are
 * no interactive runs.
 *
 * Files dropped on the list are announced by droppedUrls(), if the host has switched that on;
 * making textures of them is the host's business.
 */
class TESSARK_PROPERTY_EXPORT TexturePropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    static PropertyEditor *Factory(Property *property);

    explicit TexturePropertyEditor(Property *property);
    ~TexturePropertyEditor() override;

    /// Shows the row of the first texture that has the value's name: a TextureChoice, or its text
    /// form. A name that no texture has, an empty one included, changes nothing.
    void setValue(const QVariant &value) override;
    QVariant value() const override;
    QWidget *widget(PropertyEditorContext *context) override;

    /// Replaces the choices. The row whose texture has the picked one's name is shown again, yet
    /// value() is invalid until the user picks another row. When the picked name is gone, emits
    /// valueChanged() once. Before widget() the textures are kept but not shown: the list is filled
    /// by calls that come after.
    void setTextures(QVector<TextureChoice> textures);
    int texturesCount() const;

    /// Whether the list takes dropped files; off at first. Before widget() it is off and setting it
    /// does nothing.
    bool acceptUrlsDrops() const;
    void setAcceptUrlsDrops(bool accept);

Q_SIGNALS:
    /// The local paths of one drop, in order. A slot may delete editor and panel, but with Qt 5 not
    /// the window they are in: there, use deleteLater().
    void droppedUrls(QStringList paths);

private Q_SLOTS:
    void listSelectionChanged(int index);

private:
    bool hasCurrent() const;
    void fillList();
    bool showRow(const QString &name);

    QVector<TextureChoice> m_textures;
    QPointer<UI::DropAcceptingListWidget> m_list; // same object as m_widget
    int m_currentIndex = -1;                      // of the value in m_textures
};

} // namespace Tessark::PropertyUI
