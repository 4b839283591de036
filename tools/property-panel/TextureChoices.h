#pragma once

#include <property/TextureChoice.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

namespace Tessark::PropertyUI {
class IPropertyEditorDelegate;
class PropertyEditorPanel;
class TexturePropertyEditor;
} // namespace Tessark::PropertyUI

namespace Tessark::PropertyPanel {

/**
 * Fills the "texture" rows of a panel, whose editors know no textures on their own.
 *
 * A row offers the textures of its hint "textures", its default and its value. Picture files that
 * are dropped on it become further textures, each once, under their path, which is relative for
 * files in the folder or below; the row's value stays. Changes that the editor cannot tell, as when
 * it goes back to its default, reach the delegate from here.
 *
 * The panel may be deleted at any time; the delegate is the panel's and must outlive this object.
 */
class TextureChoices : public QObject
{
    Q_OBJECT

public:
    /// Fills the rows and shows the delegate's values. Relative paths start at folder.
    TextureChoices(const PropertyUI::PropertyEditorPanel &panel,
                   PropertyUI::IPropertyEditorDelegate *delegate, const QString &folder,
                   QObject *parent = nullptr);
    ~TextureChoices() override;

    /// Shows the delegate's values; to be called after each refresh of the panel.
    void refresh();

Q_SIGNALS:
    /// Files were dropped, and those that could be read were added; why the others could not.
    void filesDropped(const QStringList &problems);

private:
    struct Row
    {
        QPointer<PropertyUI::TexturePropertyEditor> editor;
        QVector<PropertyUI::TextureChoice> textures;
    };

    void fill(Row &row);
    void show(Row &row);
    void takeShownTexture(Row &row);
    void addFiles(Row &row, const QStringList &paths);
    PropertyUI::TextureChoice value(const Row &row) const;
    QString nameForFile(const QString &path) const;

    PropertyUI::IPropertyEditorDelegate *m_delegate;
    QString m_folder;
    std::vector<Row> m_rows; // filled by the constructor; references to rows stay
};

} // namespace Tessark::PropertyPanel
