#pragma once

#include "support/Registry.h"

#include <host/PropertyList.h>
#include <property/PropertyEditorPanel.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QPixmap>
#include <QSet>
#include <QVector4D>

namespace TestSupport {

/// Rows of all types that have an editor, with what shows texts.
class EveryTypeRows
{
public:
    using PropertyList = Tessark::PropertyHost::PropertyList;

    static PropertyList list()
    {
        PropertyList list;
        addNumbersAndTexts(list);
        addVectorsAndSizes(list);
        addPictures(list);
        return list;
    }

    /// Whether there is a row of every type.
    static bool hasAll(const PropertyList &list)
    {
        QSet<QString> types;
        for (const auto *property : list.properties())
            types.insert(property->type);
        for (const LibraryEditor &editor : libraryEditors()) {
            if (!types.contains(editor.type))
                return false;
        }
        return true;
    }

    /// What a list cannot have.
    static void setTextures(const Tessark::PropertyUI::PropertyEditorPanel &panel)
    {
        using namespace Tessark::PropertyUI;
        const QPixmap texture = picture();
        QVector<PropertyEditor *> editors;
        panel.getEditors(editors, kPropertyTypeTexture);
        for (PropertyEditor *editor : std::as_const(editors))
            qobject_cast<TexturePropertyEditor *>(editor)->setTextures(
                {{text("Wood, polished"), texture.toImage(), texture},
                 {text("Sand"), texture.toImage(), texture}});
    }

private:
    static QString text(const char *some) { return QString::fromUtf8(some); }

    static QPixmap picture()
    {
        QPixmap picture(24, 24);
        picture.fill(Qt::darkCyan);
        return picture;
    }

    static void addNumbersAndTexts(PropertyList &list)
    {
        list.group(text("Numbers, texts and choices"), [&list] {
            list.integer(text("frames"), text("Frames"))
                .range(0, 100000)
                .help(text("How many there are."))
                .defaultValue(86400);
            list.number(text("gain"), text("Gain"))
                .range(-60, 60)
                .suffix(text(" dB"))
                .defaultValue(-59.5);
            list.percent(text("volume"), text("Volume")).range(0, 1).defaultValue(1);
            list.boolean(text("loop"), text("Play in a loop"));
            list.boolean(text("off"), text("Cannot be chosen")).enabled(false);
            list.string(text("title"), text("Title gypsy")).defaultValue(text("Harbour at dawn"));
            list.string(text("locked"), text("Job")).enabled(false).defaultValue(text("2026-0417"));
            list.text(text("notes"), text("Notes")).defaultValue(text("one take"));
            list.filename(text("folder"), text("Folder")).defaultValue(text("/home/ada/movies"));
            list.staticText(text("status"), text("Status"))
                .defaultValue(text("Ready to go, jumping"));
            list.action(text("render"), text("Render the Preview"));
            list.choice(text("codec"), text("Codec"))
                .choices({text("Archive (lossless)"), text("Broadcast")});
            list.choice(text("fields"), text("Fields"))
                .choices({text("Progressive"), text("Upper first")})
                .radioButtons();
            list.separator();
        });
    }

    static void addVectorsAndSizes(PropertyList &list)
    {
        list.group(text("Vectors and sizes"), [&list] {
            const QVector4D low(-10, -10, -10, -10);
            const QVector4D high(10, 10, 10, 10);
            list.vec2(text("offset"), text("Offset")).range(low, high);
            list.vec3(text("lift"), text("Lift")).range(low, high).showSliders();
            list.vec3(text("power"), text("Power"))
                .range(low, high)
                .showSliders()
                .showMultipleCheck();
            list.vec4(text("crop"), text("Crop")).range(low, high);
            list.size(text("frame"), text("Frame"))
                .aspectRatio({16, 9})
                .defaultValue(QSize(1920, 1080));
            list.renderSize(text("output"), text("Output"))
                .fullSize({1920, 1080})
                .defaultValue(QSize(1920, 1080));
        });
    }

    static void addPictures(PropertyList &list)
    {
        list.tabs([&list] {
            list.tab(text("Colours and pages"), [&list] {
                list.color(text("tint"), text("Tint"));
                list.image(text("poster"), text("Poster")).defaultValue(picture());
            });
            list.tab(text("Pictures"), [&list] {
                list.imageFormat(text("format"), text("Format"));
                list.texture(text("floor"), text("Floor"));
                list.transform2D(text("placement"), text("Placement")).collapsibleScale();
            });
        });
    }
};

} // namespace TestSupport
