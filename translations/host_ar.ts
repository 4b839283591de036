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
    <name>Tessark::PropertyHost::Messages</name>
    <message>
        <source>a row of type %1 does not show values of %2</source>
        <translation>لا يعرض صف من النوع %1 قيم %2</translation>
    </message>
    <message>
        <source>means nothing for type %1</source>
        <translation>لا معنى له مع النوع %1</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;0..10&quot; or &quot;0..10..100&quot;</source>
        <translation>%1 ليس بالصيغة &quot;0..10&quot; أو &quot;0..10..100&quot;</translation>
    </message>
    <message>
        <source>the bounds of %1 do not ascend</source>
        <translation>حدود %1 ليست تصاعدية</translation>
    </message>
    <message>
        <source>unknown hint%1</source>
        <translation>تلميح غير معروف%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 has no key %2</source>
        <translation>لا يحتوي %1 على المفتاح %2</translation>
    </message>
    <message>
        <source>there is no property %1%2</source>
        <translation>لا توجد خاصية %1%2</translation>
    </message>
    <message>
        <source>%1 is not one of %2</source>
        <translation>%1 ليس من هذه القيم: %2</translation>
    </message>
    <message>
        <source>names of alignments</source>
        <translation>أسماء محاذاة</translation>
    </message>
    <message>
        <source>expected names of alignments, found an empty array</source>
        <translation>المتوقع: أسماء محاذاة، والموجود: مصفوفة فارغة</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>مصفوفة</translation>
    </message>
    <message>
        <source>%1 is not of the form &quot;Family&quot; or &quot;Family, 12&quot;</source>
        <translation>%1 ليس بالصيغة &quot;Family&quot; أو &quot;Family, 12&quot;</translation>
    </message>
    <message>
        <source>a font size must be at least 1 and below 1000</source>
        <translation>يجب أن يكون حجم الخط 1 على الأقل وأقل من 1000</translation>
    </message>
    <message>
        <source>unknown key%1</source>
        <translation>مفتاح غير معروف%1</translation>
    </message>
    <message>
        <source>a font as text or object</source>
        <translation>خط على هيئة نص أو كائن</translation>
    </message>
    <message>
        <source>a condition or an array of them</source>
        <translation>شرط أو مصفوفة شروط</translation>
    </message>
    <message>
        <source>expected conditions, found an empty array</source>
        <translation>المتوقع: شروط، والموجود: مصفوفة فارغة</translation>
    </message>
    <message>
        <source>%1 is not one of %2%3</source>
        <translation>%1 ليس من هذه القيم: %2%3</translation>
    </message>
    <message>
        <source>a compression rate must lie between 0 and %1</source>
        <translation>يجب أن تقع نسبة الضغط بين 0 و%1</translation>
    </message>
    <message>
        <source>an object with &quot;format&quot;</source>
        <translation>كائن يحتوي على &quot;format&quot;</translation>
    </message>
    <message>
        <source>cannot be read: it is a directory</source>
        <translation>تتعذر القراءة: إنه مجلد</translation>
    </message>
    <message>
        <source>cannot be opened: %1</source>
        <translation>يتعذر الفتح: %1</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>تتعذر القراءة: %1</translation>
    </message>
    <message numerus="yes">
        <source>is too large: at most %1 MiB (%n bytes) are read</source>
        <translation>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (%n بايت)</numerusform>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (بايت واحد)</numerusform>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (%n بايت)</numerusform>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (%n بايت)</numerusform>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (%n بايت)</numerusform>
            <numerusform>كبير جدًا: لا يُقرأ أكثر من %1 ميبيبايت (%n بايت)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %1, found an array of %n</source>
        <translation>
            <numerusform>المتوقع: %1، والموجود: مصفوفة بلا عناصر</numerusform>
            <numerusform>المتوقع: %1، والموجود: مصفوفة من عنصر واحد</numerusform>
            <numerusform>المتوقع: %1، والموجود: مصفوفة من عنصرين</numerusform>
            <numerusform>المتوقع: %1، والموجود: مصفوفة من %n عناصر</numerusform>
            <numerusform>المتوقع: %1، والموجود: مصفوفة من %n عنصرًا</numerusform>
            <numerusform>المتوقع: %1، والموجود: مصفوفة من %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>a colour component must lie between 0 and 1</source>
        <translation>يجب أن يقع مكوّن اللون بين 0 و1</translation>
    </message>
    <message>
        <source>3 or 4 fractions</source>
        <translation>3 كسور أو 4</translation>
    </message>
    <message>
        <source>3 fractions</source>
        <translation>3 كسور</translation>
    </message>
    <message>
        <source>%1 is not a colour</source>
        <translation>%1 ليس لونًا</translation>
    </message>
    <message>
        <source>%1 is not an opaque colour</source>
        <translation>%1 ليس لونًا معتمًا</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>قيمة منطقية</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>a string</source>
        <translation>سلسلة نصية</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>كائن</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>المتوقع: %1، والموجود: %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>عدد صحيح</translation>
    </message>
    <message>
        <source>expected a whole number, found %1</source>
        <translation>المتوقع: عدد صحيح، والموجود: %1</translation>
    </message>
    <message>
        <source>a whole number must lie between %1 and %2</source>
        <translation>يجب أن يقع العدد الصحيح بين %1 و%2</translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers with single spaces between, found %1</source>
        <translation>
            <numerusform>المتوقع: %n عدد، والموجود: %1</numerusform>
            <numerusform>المتوقع: عدد واحد، والموجود: %1</numerusform>
            <numerusform>المتوقع: عددان بينهما مسافة واحدة، والموجود: %1</numerusform>
            <numerusform>المتوقع: %n أعداد بين كل منها مسافة واحدة، والموجود: %1</numerusform>
            <numerusform>المتوقع: %n عددًا بين كل منها مسافة واحدة، والموجود: %1</numerusform>
            <numerusform>المتوقع: %n عدد بين كل منها مسافة واحدة، والموجود: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in %2 is not a number</source>
        <translation>%1 في %2 ليس عددًا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; مفقود</translation>
    </message>
    <message>
        <source>a colour as text or array of fractions</source>
        <translation>لون على هيئة نص أو مصفوفة كسور</translation>
    </message>
    <message>
        <source>a string, a number or a boolean</source>
        <translation>سلسلة نصية أو عدد أو قيمة منطقية</translation>
    </message>
    <message>
        <source>[width, height]</source>
        <translation>[العرض, الارتفاع]</translation>
    </message>
    <message>
        <source>illegal value</source>
        <translation>قيمة غير مسموح بها</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>المستند فارغ</translation>
    </message>
    <message>
        <source>invalid UTF-8: byte 0x%1</source>
        <translation>ترميز UTF-8 غير صالح: البايت 0x%1</translation>
    </message>
    <message>
        <source>this group is never closed, %1 is missing</source>
        <translation>لا تُغلق هذه المجموعة أبدًا، فالنوع %1 مفقود</translation>
    </message>
    <message>
        <source>this tab group is never closed, %1 is missing</source>
        <translation>لا تُغلق مجموعة ألسنة التبويب هذه أبدًا، فالنوع %1 مفقود</translation>
    </message>
    <message numerus="yes">
        <source>groups and tab groups may be nested %n deep at most</source>
        <translation>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على %n مستوى</numerusform>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على مستوى واحد</numerusform>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على مستويين</numerusform>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على %n مستويات</numerusform>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على %n مستوى</numerusform>
            <numerusform>لا يجوز أن تتداخل المجموعات ومجموعات ألسنة التبويب بعمق يزيد على %n مستوى</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing is open that %1 could close</source>
        <translation>لا يوجد شيء مفتوح يمكن أن يغلقه %1</translation>
    </message>
    <message>
        <source>%1 here leaves %2 open</source>
        <translation>يترك %1 هنا %2 مفتوحًا</translation>
    </message>
    <message>
        <source>a tab outside of a tab group</source>
        <translation>لسان تبويب خارج مجموعة ألسنة تبويب</translation>
    </message>
    <message>
        <source>a tab inside of the group %1</source>
        <translation>لسان تبويب داخل المجموعة %1</translation>
    </message>
    <message>
        <source>no row shows the property %1, of type %2</source>
        <translation>لا يعرض أي صف الخاصية %1 من النوع %2</translation>
    </message>
    <message>
        <source>class information %1 of %2: %3</source>
        <translation>معلومات الصنف %1 في %2: %3</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>لا يوجد ملف %1</translation>
    </message>
    <message>
        <source>%1 is not a file</source>
        <translation>%1 ليس ملفًا</translation>
    </message>
    <message>
        <source>%1 cannot be read as a picture: %2</source>
        <translation>تتعذر قراءة %1 كصورة: %2</translation>
    </message>
    <message>
        <source>%1 does not tell the size of its picture</source>
        <translation>لا يذكر %1 حجم صورته</translation>
    </message>
    <message numerus="yes">
        <source>%1 is too large: it has %2 x %3 pixels, at most %n megapixels are read</source>
        <translation>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من %n ميغابكسل</numerusform>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من ميغابكسل واحد</numerusform>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من %n ميغابكسل</numerusform>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من %n ميغابكسل</numerusform>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من %n ميغابكسل</numerusform>
            <numerusform>%1 كبير جدًا: فيه %2 × %3 بكسل، ولا يُقرأ أكثر من %n ميغابكسل</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>يتعذر فتح %1: %2</translation>
    </message>
    <message>
        <source>a path or null</source>
        <translation>مسار أو null</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>خطأ: %1</translation>
    </message>
    <message>
        <source>warning: %1</source>
        <translation>تحذير: %1</translation>
    </message>
    <message>
        <source>%1 and %2 are not listed</source>
        <translation>لم يُدرج ما يلي: %1 و%2</translation>
    </message>
    <message numerus="yes">
        <source>%n more errors</source>
        <translation>
            <numerusform>%n أخطاء أخرى</numerusform>
            <numerusform>خطأ آخر</numerusform>
            <numerusform>خطآن آخران</numerusform>
            <numerusform>%n أخطاء أخرى</numerusform>
            <numerusform>%n خطأً آخر</numerusform>
            <numerusform>%n خطأ آخر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more warnings</source>
        <translation>
            <numerusform>%n تحذيرات أخرى</numerusform>
            <numerusform>تحذير آخر</numerusform>
            <numerusform>تحذيران آخران</numerusform>
            <numerusform>%n تحذيرات أخرى</numerusform>
            <numerusform>%n تحذيرًا آخر</numerusform>
            <numerusform>%n تحذير آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>expected version %1, found %2</source>
        <translation>المتوقع: الإصدار %1، والموجود: %2</translation>
    </message>
    <message>
        <source>the name %1 is taken by a texture before</source>
        <translation>الاسم %1 مستخدم في خامة سابقة</translation>
    </message>
    <message>
        <source>%1 is outside of the range</source>
        <translation>%1 خارج النطاق</translation>
    </message>
    <message>
        <source>type &quot;%1&quot; has no arithmetic</source>
        <translation>لا يدعم النوع &quot;%1&quot; العمليات الحسابية</translation>
    </message>
    <message>
        <source>the operand is not a number</source>
        <translation>المعامَل ليس عددًا</translation>
    </message>
    <message numerus="yes">
        <source>the operand is neither a number nor %n</source>
        <translation>
            <numerusform>المعامَل ليس عددًا</numerusform>
            <numerusform>المعامَل ليس عددًا</numerusform>
            <numerusform>المعامَل ليس عددًا ولا عددين</numerusform>
            <numerusform>المعامَل ليس عددًا ولا %n أعداد</numerusform>
            <numerusform>المعامَل ليس عددًا ولا %n عددًا</numerusform>
            <numerusform>المعامَل ليس عددًا ولا %n عدد</numerusform>
        </translation>
    </message>
    <message>
        <source>the operand is not a finite number</source>
        <translation>المعامَل ليس عددًا منتهيًا</translation>
    </message>
    <message>
        <source>division by zero</source>
        <translation>القسمة على صفر</translation>
    </message>
    <message>
        <source>the value is not %1</source>
        <translation>القيمة غير مناسبة، المتوقع: %1</translation>
    </message>
    <message>
        <source>the result is not %1</source>
        <translation>النتيجة غير مناسبة، المتوقع: %1</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>الاسم فارغ</translation>
    </message>
    <message>
        <source>the name %1 is taken by a row before</source>
        <translation>الاسم %1 مستخدم في صف سابق</translation>
    </message>
    <message>
        <source>no editor for type %1, the row is skipped%2</source>
        <translation>لا يوجد محرر للنوع %1، ويُحذف الصف%2</translation>
    </message>
    <message>
        <source>no editor reads this hint for type %1</source>
        <translation>لا يقرأ أي محرر هذا التلميح للنوع %1</translation>
    </message>
    <message numerus="yes">
        <source>%n values for %1 &quot;display_values&quot;</source>
        <translation>
            <numerusform>لا قيم مقابل %1 &quot;display_values&quot;</numerusform>
            <numerusform>قيمة واحدة مقابل %1 &quot;display_values&quot;</numerusform>
            <numerusform>قيمتان مقابل %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n قيم مقابل %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n قيمة مقابل %1 &quot;display_values&quot;</numerusform>
            <numerusform>%n قيمة مقابل %1 &quot;display_values&quot;</numerusform>
        </translation>
    </message>
    <message>
        <source>means nothing for type %1, ignored</source>
        <translation>لا معنى له مع النوع %1، ويُتجاهل</translation>
    </message>
    <message>
        <source>&quot;max&quot; is missing and counts as 0</source>
        <translation>&quot;max&quot; مفقود ويُعد 0</translation>
    </message>
    <message>
        <source>the bound is not %1</source>
        <translation>الحد غير مناسب، المتوقع: %1</translation>
    </message>
    <message>
        <source>%1 is above &quot;%2&quot;, which is %3</source>
        <translation>%1 أكبر من &quot;%2&quot; الذي قيمته %3</translation>
    </message>
    <message>
        <source>a property of type %1 has no value</source>
        <translation>لا قيمة لخاصية من النوع %1</translation>
    </message>
    <message>
        <source>the default is not %1</source>
        <translation>القيمة الافتراضية غير مناسبة، المتوقع: %1</translation>
    </message>
    <message>
        <source>%1 is not a number</source>
        <translation>%1 ليس عددًا</translation>
    </message>
    <message>
        <source>the %1 that opens here never closes</source>
        <translation>لا تُغلق أبدًا العلامة %1 المفتوحة هنا</translation>
    </message>
    <message>
        <source>%1 is not expected%2</source>
        <translation>%1 غير متوقع هنا%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 has no choice %2, the list has %n</source>
        <translation>
            <numerusform>لا يحتوي %1 على الخيار %2، والقائمة فارغة</numerusform>
            <numerusform>لا يحتوي %1 على الخيار %2، وفي القائمة خيار واحد</numerusform>
            <numerusform>لا يحتوي %1 على الخيار %2، وفي القائمة خياران</numerusform>
            <numerusform>لا يحتوي %1 على الخيار %2، وفي القائمة %n خيارات</numerusform>
            <numerusform>لا يحتوي %1 على الخيار %2، وفي القائمة %n خيارًا</numerusform>
            <numerusform>لا يحتوي %1 على الخيار %2، وفي القائمة %n خيار</numerusform>
        </translation>
    </message>
    <message>
        <source>this is not one of the values of %1</source>
        <translation>ليست هذه من قيم %1</translation>
    </message>
    <message>
        <source>%1 is not one of the values of %2%3</source>
        <translation>ليست %1 من قيم %2%3</translation>
    </message>
    <message>
        <source>a truth value</source>
        <translation>قيمة منطقية</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>a value of several parts</source>
        <translation>قيمة من عدة أجزاء</translation>
    </message>
    <message>
        <source>a value</source>
        <translation>قيمة</translation>
    </message>
    <message>
        <source>%1 has no component %2%3</source>
        <translation>لا يحتوي %1 على المكوّن %2%3</translation>
    </message>
    <message>
        <source>%1 has no component %2, but %3</source>
        <translation>لا يحتوي %1 على المكوّن %2، بل على %3</translation>
    </message>
    <message>
        <source>rules cannot read %1, which is of type %2</source>
        <translation>لا تستطيع القواعد قراءة %1 الذي نوعه %2</translation>
    </message>
    <message>
        <source>%1 has no components</source>
        <translation>لا يحتوي %1 على مكوّنات</translation>
    </message>
    <message>
        <source>%1 has several parts, name one as in %2</source>
        <translation>يتكون %1 من عدة أجزاء، حدد واحدًا منها كما في %2</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 مفقود</translation>
    </message>
    <message>
        <source>the rule ends too early</source>
        <translation>تنتهي القاعدة قبل اكتمالها</translation>
    </message>
    <message>
        <source>%1 is not expected</source>
        <translation>%1 غير متوقع هنا</translation>
    </message>
    <message numerus="yes">
        <source>a rule may be nested %n deep at most</source>
        <translation>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على %n مستوى</numerusform>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على مستوى واحد</numerusform>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على مستويين</numerusform>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على %n مستويات</numerusform>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على %n مستوى</numerusform>
            <numerusform>لا يجوز أن تتداخل القاعدة بعمق يزيد على %n مستوى</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n characters at most</source>
        <translation>
            <numerusform>لا يجوز أن تزيد القاعدة على %n حرف</numerusform>
            <numerusform>لا يجوز أن تزيد القاعدة على حرف واحد</numerusform>
            <numerusform>لا يجوز أن تزيد القاعدة على حرفين</numerusform>
            <numerusform>لا يجوز أن تزيد القاعدة على %n أحرف</numerusform>
            <numerusform>لا يجوز أن تزيد القاعدة على %n حرفًا</numerusform>
            <numerusform>لا يجوز أن تزيد القاعدة على %n حرف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>expected %n numbers, found %1</source>
        <translation>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
            <numerusform>عدد الأرقام المتوقع: %n، والموجود: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>these rules go in a circle: %1</source>
        <translation>تدور هذه القواعد في حلقة: %1</translation>
    </message>
    <message>
        <source>these minima go in a circle: %1</source>
        <translation>تدور هذه الحدود الدنيا في حلقة: %1</translation>
    </message>
    <message>
        <source>these maxima go in a circle: %1</source>
        <translation>تدور هذه الحدود العليا في حلقة: %1</translation>
    </message>
    <message>
        <source>expected an expression as text</source>
        <translation>المتوقع: تعبير على هيئة نص</translation>
    </message>
    <message>
        <source>expected a condition as text, or several</source>
        <translation>المتوقع: شرط واحد أو أكثر على هيئة نص</translation>
    </message>
    <message numerus="yes">
        <source>a rule may have %n conditions at most</source>
        <translation>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على %n شرط</numerusform>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على شرط واحد</numerusform>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على شرطين</numerusform>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على %n شروط</numerusform>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على %n شرطًا</numerusform>
            <numerusform>لا يجوز أن تزيد شروط القاعدة على %n شرط</numerusform>
        </translation>
    </message>
    <message>
        <source>the rule belongs to the row that opens what %1 closes</source>
        <translation>مكان القاعدة هو الصف الذي يفتح ما يغلقه %1</translation>
    </message>
    <message>
        <source>rows of type %1 have no range</source>
        <translation>ليس للصفوف من النوع %1 نطاق</translation>
    </message>
    <message>
        <source>character %1: %2</source>
        <translation>الحرف %1: %2</translation>
    </message>
    <message>
        <source>not a row that all selected objects have</source>
        <translation>ليس صفًا تشترك فيه جميع الكائنات المحددة</translation>
    </message>
    <message numerus="yes">
        <source>the texts of a list may have %n characters in all, the rest is left out</source>
        <translation>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على %n حرف، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على حرف واحد، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على حرفين، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على %n أحرف، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على %n حرفًا، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد نصوص القائمة مجتمعةً على %n حرف، ويُحذف الباقي</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the arrays and objects of a list may have %n entries in all, the rest is left out</source>
        <translation>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على %n عنصر، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على عنصر واحد، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على عنصرين، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على %n عناصر، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على %n عنصرًا، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد عناصر مصفوفات القائمة وكائناتها مجتمعةً على %n عنصر، ويُحذف الباقي</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>the pictures of a list may have %n megapixels in all, the rest is left out</source>
        <translation>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على %n ميغابكسل، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على ميغابكسل واحد، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على %n ميغابكسل، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على %n ميغابكسل، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على %n ميغابكسل، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صور القائمة مجتمعةً على %n ميغابكسل، ويُحذف الباقي</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a list may have %n rows at most, the rest is left out</source>
        <translation>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على %n صف، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على صف واحد، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على صفين، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على %n صفوف، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على %n صفًا، ويُحذف الباقي</numerusform>
            <numerusform>لا يجوز أن تزيد صفوف القائمة على %n صف، ويُحذف الباقي</numerusform>
        </translation>
    </message>
    <message>
        <source>only a trusted list may have style sheets, which can name files</source>
        <translation>لا يجوز أن تحتوي على أوراق أنماط إلا قائمة موثوقة، لأنها قد تسمي ملفات</translation>
    </message>
    <message numerus="yes">
        <source>a row may be %n pixels wide and high at most</source>
        <translation>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على %n بكسل</numerusform>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على بكسل واحد</numerusform>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على %n بكسل</numerusform>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على %n بكسل</numerusform>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على %n بكسل</numerusform>
            <numerusform>لا يجوز أن يزيد عرض الصف أو ارتفاعه على %n بكسل</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>a text may have %n characters at most, this one has %1</source>
        <translation>
            <numerusform>لا يجوز أن يزيد النص على %n حرف، وطول هذا النص %1</numerusform>
            <numerusform>لا يجوز أن يزيد النص على حرف واحد، وطول هذا النص %1</numerusform>
            <numerusform>لا يجوز أن يزيد النص على حرفين، وطول هذا النص %1</numerusform>
            <numerusform>لا يجوز أن يزيد النص على %n أحرف، وطول هذا النص %1</numerusform>
            <numerusform>لا يجوز أن يزيد النص على %n حرفًا، وطول هذا النص %1</numerusform>
            <numerusform>لا يجوز أن يزيد النص على %n حرف، وطول هذا النص %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 lies outside of the folder of the list; only a trusted list may name it</source>
        <translation>يقع %1 خارج مجلد القائمة؛ ولا يجوز أن تسميه إلا قائمة موثوقة</translation>
    </message>
    <message>
        <source>%1 is of the format &quot;%2&quot;; only a trusted list may have pictures of it</source>
        <translation>صيغة %1 هي &quot;%2&quot;؛ ولا يجوز أن تحتوي على صور بهذه الصيغة إلا قائمة موثوقة</translation>
    </message>
    <message>
        <source>markup is shown as it is written</source>
        <translation>تُعرض الوسوم كما هي مكتوبة</translation>
    </message>
    <message>
        <source> (did you mean %1?)</source>
        <translation> (هل تقصد %1؟)</translation>
    </message>
    <message>
        <source>the %1 is empty</source>
        <translation>&quot;%1&quot; فارغ</translation>
    </message>
    <message>
        <source>a path or an object with &quot;file&quot;</source>
        <translation>مسار أو كائن يحتوي على &quot;file&quot;</translation>
    </message>
    <message>
        <source>the path is empty</source>
        <translation>المسار فارغ</translation>
    </message>
    <message>
        <source>the name of a texture, a path or null</source>
        <translation>اسم خامة أو مسار أو null</translation>
    </message>
    <message>
        <source>%1 is neither one of the &quot;textures&quot; nor a file%2</source>
        <translation>لا يوجد %1 ضمن &quot;textures&quot; وليس ملفًا%2</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>لا قيمة</translation>
    </message>
    <message>
        <source>one of the choices</source>
        <translation>أحد الخيارات</translation>
    </message>
    <message>
        <source>a vector of 2</source>
        <translation>متجه من عددين</translation>
    </message>
    <message>
        <source>a vector of 3</source>
        <translation>متجه من 3 أعداد</translation>
    </message>
    <message>
        <source>a vector of 4</source>
        <translation>متجه من 4 أعداد</translation>
    </message>
    <message>
        <source>a colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>a point</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>a size</source>
        <translation>حجم</translation>
    </message>
    <message>
        <source>a rectangle</source>
        <translation>مستطيل</translation>
    </message>
    <message>
        <source>a matrix</source>
        <translation>مصفوفة رياضية</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>an image format</source>
        <translation>صيغة صورة</translation>
    </message>
    <message>
        <source>a texture</source>
        <translation>خامة</translation>
    </message>
    <message>
        <source>[x, y]</source>
        <translation>[x, y]</translation>
    </message>
    <message>
        <source>[x, y, width, height]</source>
        <translation>[x, y, العرض, الارتفاع]</translation>
    </message>
    <message>
        <source>9 numbers</source>
        <translation>9 أعداد</translation>
    </message>
    <message>
        <source>2 numbers</source>
        <translation>عددان</translation>
    </message>
    <message>
        <source>3 numbers</source>
        <translation>3 أعداد</translation>
    </message>
    <message>
        <source>4 numbers</source>
        <translation>4 أعداد</translation>
    </message>
    <message>
        <source>%1 is not one of the &quot;values&quot;</source>
        <translation>لا يوجد %1 ضمن &quot;values&quot;</translation>
    </message>
    <message numerus="yes">
        <source>there is no choice %1, the list has %n</source>
        <translation>
            <numerusform>لا يوجد خيار %1، والقائمة فارغة</numerusform>
            <numerusform>لا يوجد خيار %1، وفي القائمة خيار واحد</numerusform>
            <numerusform>لا يوجد خيار %1، وفي القائمة خياران</numerusform>
            <numerusform>لا يوجد خيار %1، وفي القائمة %n خيارات</numerusform>
            <numerusform>لا يوجد خيار %1، وفي القائمة %n خيارًا</numerusform>
            <numerusform>لا يوجد خيار %1، وفي القائمة %n خيار</numerusform>
        </translation>
    </message>
    <message>
        <source>a vector component is too large for single precision</source>
        <translation>أحد مكوّنات المتجه أكبر مما تتسع له الدقة المفردة</translation>
    </message>
    <message>
        <source>the rectangle ends outside the range of whole numbers</source>
        <translation>ينتهي المستطيل خارج نطاق الأعداد الصحيحة</translation>
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
