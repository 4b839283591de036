<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Tessark::PropertyUI::ImageFormatEditor</name>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>JPEG-Qualität:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditor</name>
    <message>
        <source>w:</source>
        <translation>B:</translation>
    </message>
    <message>
        <source>h:</source>
        <translation>H:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditorPanel</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>Auf Standardwert setzen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>Schieberegler</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::RenderSizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Full Resolution</source>
        <translation>Volle Auflösung</translation>
    </message>
    <message>
        <source>Half Resolution</source>
        <translation>Halbe Auflösung</translation>
    </message>
    <message>
        <source>Quarter Resolution</source>
        <translation>Viertel der Auflösung</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Benutzerdefiniert...</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::SizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::TabPropertyEditor</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Registerkarten</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::Transform2DPropertyEditor</name>
    <message>
        <source>Offset X:</source>
        <translation>Versatz X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Skalierung:</translation>
    </message>
    <message>
        <source>Scale X:</source>
        <translation>Skalierung X:</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Versatz Y</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Skalierung Y</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::VecPropertyEditor</name>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorControl</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Color wheel</source>
        <translation>Farbkreis</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>Aufklappen</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
</context>
</TS>
