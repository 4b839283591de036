<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>Tessark::PropertyHost::DefaultMark</name>
    <message>
        <source>Set to Default</source>
        <translation>تعيين القيمة الافتراضية</translation>
    </message>
    <message>
        <source>Set %1 to Default</source>
        <translation>تعيين القيمة الافتراضية لـ %1</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedPainter</name>
    <message>
        <source>Several values</source>
        <translation>قيم متعددة</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::MixedRows</name>
    <message>
        <source>The selected objects have different values.</source>
        <translation>للكائنات المحددة قيم مختلفة.</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberExpression</name>
    <message numerus="yes">
        <source>The expression is longer than %n characters</source>
        <translation>
            <numerusform>التعبير أطول من %n حرف</numerusform>
            <numerusform>التعبير أطول من حرف واحد</numerusform>
            <numerusform>التعبير أطول من حرفين</numerusform>
            <numerusform>التعبير أطول من %n أحرف</numerusform>
            <numerusform>التعبير أطول من %n حرفًا</numerusform>
            <numerusform>التعبير أطول من %n حرف</numerusform>
        </translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>القسمة على صفر</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ليس عددًا</translation>
    </message>
    <message>
        <source>There is no number named %1</source>
        <translation>لا يوجد عدد باسم %1</translation>
    </message>
    <message>
        <source>There is no function named %1</source>
        <translation>لا توجد دالة باسم %1</translation>
    </message>
    <message>
        <source>%1 takes two or more numbers, with &quot;;&quot; between them</source>
        <translation>تأخذ %1 عددين أو أكثر تفصل بينها العلامة &quot;;&quot;</translation>
    </message>
    <message>
        <source>%1 takes one number</source>
        <translation>تأخذ %1 عددًا واحدًا</translation>
    </message>
    <message numerus="yes">
        <source>The expression is nested more than %n levels deep</source>
        <translation>
            <numerusform>التعبير متداخل بعمق يزيد على %n مستوى</numerusform>
            <numerusform>التعبير متداخل بعمق يزيد على مستوى واحد</numerusform>
            <numerusform>التعبير متداخل بعمق يزيد على مستويين</numerusform>
            <numerusform>التعبير متداخل بعمق يزيد على %n مستويات</numerusform>
            <numerusform>التعبير متداخل بعمق يزيد على %n مستوى</numerusform>
            <numerusform>التعبير متداخل بعمق يزيد على %n مستوى</numerusform>
        </translation>
    </message>
    <message>
        <source>The result is no real number</source>
        <translation>النتيجة ليست عددًا حقيقيًا</translation>
    </message>
    <message>
        <source>The result is too large</source>
        <translation>النتيجة كبيرة جدًا</translation>
    </message>
    <message>
        <source>Something is missing at the end</source>
        <translation>ينقص شيء في النهاية</translation>
    </message>
    <message>
        <source>%1 is not expected here</source>
        <translation>%1 غير متوقع هنا</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::NumberField</name>
    <message>
        <source>= %1 (largest)</source>
        <translation>= %1 (الأكبر)</translation>
    </message>
    <message>
        <source>= %1 (smallest)</source>
        <translation>= %1 (الأصغر)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::OperandDialog</name>
    <message>
        <source>Add to Each</source>
        <translation>إضافة إلى كل كائن</translation>
    </message>
    <message>
        <source>Multiply Each</source>
        <translation>ضرب كل كائن</translation>
    </message>
    <message>
        <source>Add to %1 of each selected object:</source>
        <translation>القيمة المضافة إلى %1 لكل كائن محدد:</translation>
    </message>
    <message>
        <source>Multiply %1 of each selected object by:</source>
        <translation>ضرب %1 لكل كائن محدد في:</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::RowMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>نسخ الا&amp;سم</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Set to &amp;Default</source>
        <translation>تعيين القيمة ال&amp;افتراضية</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>&amp;Add to Each...</source>
        <translation>إ&amp;ضافة إلى كل كائن...</translation>
    </message>
    <message>
        <source>&amp;Multiply Each...</source>
        <translation>&amp;ضرب كل كائن...</translation>
    </message>
    <message>
        <source>Set to Default</source>
        <translation>تعيين القيمة الافتراضية</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchBar</name>
    <message>
        <source>No matches</source>
        <translation>لا توجد نتائج</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>match, all matches</comment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>1 match</source>
        <translation>نتيجة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n matches</source>
        <translation>
            <numerusform>%n نتيجة</numerusform>
            <numerusform>%n نتيجة</numerusform>
            <numerusform>%n نتيجة</numerusform>
            <numerusform>%n نتائج</numerusform>
            <numerusform>%n نتيجة</numerusform>
            <numerusform>%n نتيجة</numerusform>
        </translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Only changed</source>
        <translation>المتغيرة فقط</translation>
    </message>
    <message>
        <source>Shows only rows whose value is not the default</source>
        <translation>يعرض الصفوف التي تختلف قيمتها عن القيمة الافتراضية فقط</translation>
    </message>
    <message>
        <source>Close the search</source>
        <translation>إغلاق البحث</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SearchTabs</name>
    <message>
        <source>%1 (%2)</source>
        <comment>tab, matches on it</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SelectionMarks</name>
    <message>
        <source>Several values</source>
        <translation>قيم متعددة</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyHost::SplitterHandle</name>
    <message>
        <source>Width of labels</source>
        <translation>عرض التسميات</translation>
    </message>
</context>
</TS>
