<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>Tessark::PropertyUI::ImageFormatEditor</name>
    <message>
        <source>JPEG Quality</source>
        <translation>جودة JPEG</translation>
    </message>
    <message>
        <source>JPEG Quality:</source>
        <translation>جودة JPEG:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditor</name>
    <message>
        <source>w:</source>
        <translation>ع:</translation>
    </message>
    <message>
        <source>h:</source>
        <translation>ا:</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::PropertyEditorPanel</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>تعيين القيمة الافتراضية</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
    <message>
        <source>choices</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>شريط التمرير</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::RenderSizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>تقييد نسبة الأبعاد</translation>
    </message>
    <message>
        <source>Full Resolution</source>
        <translation>الدقة الكاملة</translation>
    </message>
    <message>
        <source>Half Resolution</source>
        <translation>نصف الدقة</translation>
    </message>
    <message>
        <source>Quarter Resolution</source>
        <translation>ربع الدقة</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>مخصص...</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::SizePropertyEditor</name>
    <message>
        <source>Constrain Aspect</source>
        <translation>تقييد نسبة الأبعاد</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::TabPropertyEditor</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>ألسنة التبويب</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyUI::Transform2DPropertyEditor</name>
    <message>
        <source>Offset X:</source>
        <translation>الإزاحة X:</translation>
    </message>
    <message>
        <source>Y:</source>
        <translation>Y:</translation>
    </message>
    <message>
        <source>Rotation:</source>
        <translation>الدوران:</translation>
    </message>
    <message>
        <source>Scale:</source>
        <translation>المقياس:</translation>
    </message>
    <message>
        <source>Scale X:</source>
        <translation>المقياس X:</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>الإزاحة Y</translation>
    </message>
    <message>
        <source>Scale Y</source>
        <translation>المقياس Y</translation>
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
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::ColorWheel</name>
    <message>
        <source>Color wheel</source>
        <translation>عجلة الألوان</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::DisclosureButton</name>
    <message>
        <source>Expand</source>
        <translation>توسيع</translation>
    </message>
</context>
<context>
    <name>Tessark::UI::FilenameField</name>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
</context>
</TS>
