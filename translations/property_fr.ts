<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Tessark::PropertyUI::ImageFormatEditor</name>
    <message>
        <source>JPEG Quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>Qualité JPEG :</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditor</name>
    <message>
        <source>w:</source>
        <translation>l :</translation>
    </message>
    <message>
        <source>h:</source>
        <translation>h :</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditorPanel</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>Rétablir la valeur par défaut</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 à %2</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>choix</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>curseur</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::RenderSizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Full Resolution</source>
        <translation>Pleine résolution</translation>
    </message>
    <message>
        <source>Half Resolution</source>
        <translation>Demi-résolution</translation>
    </message>
    <message>
        <source>Quarter Resolution</source>
        <translation>Quart de résolution</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Personnalisée...</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::SizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>Conserver les proportions</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::TabPropertyEditor</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::Transform2DPropertyEditor</name>
    <message>
        <source>Offset X:</source>
        <translation>Décalage X :</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y :</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>Rotation :</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>Échelle :</translation>
    </message>
    <message>
        <source>Scale X:</source>
        <translation>Échelle X :</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Décalage Y</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>Échelle Y</translation>
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
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Color wheel</source>
        <translation>Roue chromatique</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>Développer</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
</context>
</TS>
