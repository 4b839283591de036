<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
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
