<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Tessark::PropertyUI::ImageFormatEditor</name>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG の品質</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>JPEG の品質:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditor</name>
    <message>
        <source>w:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>h:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditorPanel</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 から %2</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>選択肢</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>スライダー</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::RenderSizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>縦横比を固定</translation>
    </message>
    <message>
        <source>Full Resolution</source>
        <translation>フル解像度</translation>
    </message>
    <message>
        <source>Half Resolution</source>
        <translation>1/2 解像度</translation>
    </message>
    <message>
        <source>Quarter Resolution</source>
        <translation>1/4 解像度</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>カスタム...</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::SizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>縦横比を固定</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::TabPropertyEditor</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::Transform2DPropertyEditor</name>
    <message>
        <source>Offset X:</source>
        <translation>オフセット X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>回転:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>拡大率:</translation>
    </message>
    <message>
        <source>Scale X:</source>
        <translation>拡大率 X:</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>オフセット Y</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>拡大率 Y</translation>
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
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Color wheel</source>
        <translation>カラーホイール</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>参照</translation>
    </message>
</context>
</TS>
