<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_EG">
<context>
    <name>Tessark::PropertyPanel::PanelWindow</name>
    <message>
        <source>Reset All</source>
        <translation>إعادة تعيين الكل</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Save the changed values?</source>
        <translation>هل تريد حفظ القيم المعدلة؟</translation>
    </message>
    <message>
        <source>Changes that are not saved are lost.</source>
        <translation>ستُفقد التغييرات التي لا تُحفظ.</translation>
    </message>
    <message>
        <source>%1 was written by another program meanwhile</source>
        <translation>كتب برنامج آخر في %1 في هذه الأثناء</translation>
    </message>
    <message>
        <source>Replace what another program has written to %1?</source>
        <translation>هل تريد استبدال ما كتبه برنامج آخر في %1؟</translation>
    </message>
    <message>
        <source>It was written while this window was open.</source>
        <translation>كُتب بينما كانت هذه النافذة مفتوحة.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
</context>
<context>
    <name>Tessark::PropertyPanel::Texts</name>
    <message>
        <source>Shows a panel for a JSON list of properties and writes the values that the user gave them, as a JSON object of name to value.</source>
        <translation>يعرض لوحة لقائمة خصائص بصيغة JSON ويكتب القيم التي أعطاها المستخدم لها ككائن JSON من الاسم إلى القيمة.</translation>
    </message>
    <message>
        <source>The property list; - reads standard input. Without it a built-in list is shown.</source>
        <translation>قائمة الخصائص؛ تقرأ - من الإدخال القياسي. وبدونها تُعرض قائمة مضمنة.</translation>
    </message>
    <message>
        <source>Start from the values in &lt;FILE&gt; instead of the defaults.</source>
        <translation>البدء بالقيم الموجودة في &lt;FILE&gt; بدلًا من القيم الافتراضية.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message>
        <source>Start from the values in the INI file &lt;FILE&gt;, if it exists, and save to it. Values of --values go before its own; its other keys stay.</source>
        <translation>البدء بالقيم الموجودة في ملف INI المسمى &lt;FILE&gt; إن وُجد، والحفظ فيه. تتقدم قيم --values على قيمه، وتبقى مفاتيحه الأخرى.</translation>
    </message>
    <message>
        <source>Save to &lt;FILE&gt;, whole or not at all, instead of to standard output.</source>
        <translation>الحفظ في &lt;FILE&gt;، كاملًا أو لا شيء، بدلًا من الإخراج القياسي.</translation>
    </message>
    <message>
        <source>Print each change at once as one line of JSON: &quot;name&quot;, &quot;value&quot; and, in &quot;continued&quot;, whether it goes on with the change before it.</source>
        <translation>طباعة كل تغيير فورًا في سطر JSON واحد: &quot;name&quot; و&quot;value&quot;، وفي &quot;continued&quot; ما إذا كان يكمل التغيير الذي قبله.</translation>
    </message>
    <message>
        <source>When --live prints a change: live (the default), at once; rate:&lt;N&gt;, at most N times a second, N from 1 to 1000, and always the last; end, when the drag or the typing ends.</source>
        <translation>متى يطبع --live تغييرًا: live (الافتراضي) فورًا؛ rate:&lt;N&gt; بحد أقصى N مرة في الثانية، N من 1 إلى 1000، ودائمًا التغيير الأخير؛ end عند انتهاء السحب أو الكتابة.</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WHEN</translation>
    </message>
    <message>
        <source>List all that is wrong with the list and the values; show nothing.</source>
        <translation>سرد كل الأخطاء في القائمة والقيم؛ دون عرض شيء.</translation>
    </message>
    <message>
        <source>Draw the whole panel to &lt;PNG&gt;, and each further tab page to a file named after it, and print their names; show nothing.</source>
        <translation>رسم اللوحة كاملة في &lt;PNG&gt;، وكل صفحة تبويب أخرى في ملف يحمل اسمها، وطباعة أسماء الملفات؛ دون عرض شيء.</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Size of the window, or of the picture; a picture grows to hold the panel.</source>
        <translation>حجم النافذة أو الصورة؛ تكبر الصورة لتتسع للوحة.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>THEME</source>
        <translation>THEME</translation>
    </message>
    <message>
        <source>Let the list name pictures anywhere and have style sheets. Without it, its pictures must lie in its folder or below.</source>
        <translation>السماح للقائمة بتسمية صور في أي مكان وباحتواء أوراق أنماط. وبدونه يجب أن تقع صورها في مجلدها أو تحته.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>طباعة الإصدار.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>طباعة هذه المساعدة.</translation>
    </message>
    <message>
        <source>There can be one property list only; &quot;%1&quot; is one too many.</source>
        <translation>يمكن أن تكون هناك قائمة خصائص واحدة فقط؛ &quot;%1&quot; زائدة.</translation>
    </message>
    <message>
        <source>The name of the property list is empty.</source>
        <translation>اسم قائمة الخصائص فارغ.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file.</source>
        <translation>يحتاج --%1 إلى اسم ملف.</translation>
    </message>
    <message>
        <source>--check and --render cannot be used together.</source>
        <translation>لا يمكن استخدام --check و--render معًا.</translation>
    </message>
    <message>
        <source>--settings and --output cannot name the same file.</source>
        <translation>لا يمكن أن يسمي --settings و--output الملف نفسه.</translation>
    </message>
    <message>
        <source>--commit is of use only with --live.</source>
        <translation>لا يفيد --commit إلا مع --live.</translation>
    </message>
    <message>
        <source>The list and the values cannot both come from standard input.</source>
        <translation>لا يمكن أن تأتي القائمة والقيم معًا من الإدخال القياسي.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a size; write width x height, such as 640x480, each from 1 to %2.</source>
        <translation>&quot;%1&quot; ليس حجمًا؛ اكتب العرض x الارتفاع، مثل 640x480، وكل منهما من 1 إلى %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no time for --commit; choose live, end, or rate:N with N from 1 to 1000.</source>
        <translation>&quot;%1&quot; ليس وقتًا صالحًا لـ --commit؛ اختر live أو end أو rate:N حيث N من 1 إلى 1000.</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ليس ملفًا</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>محمي من الكتابة</translation>
    </message>
    <message>
        <source>built-in list</source>
        <translation>القائمة المضمنة</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>الإدخال القياسي</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Cannot write %1: the panel takes %2 x %3 pixels, at most %4 megapixels are drawn</source>
        <translation>تتعذر كتابة %1: تحتاج اللوحة إلى %2 × %3 بكسل، ولا يُرسم أكثر من %4 ميغابكسل</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>تتعذر كتابة %1: %2</translation>
    </message>
    <message>
        <source>no problems found</source>
        <translation>لم يُعثر على أي مشكلة</translation>
    </message>
    <message>
        <source>There is no display to show a window on. Use --render to draw the panel to PNG files, or --check to look for problems only.</source>
        <translation>لا توجد شاشة لعرض نافذة عليها. استخدم --render لرسم اللوحة في ملفات PNG، أو --check للبحث عن المشكلات فقط.</translation>
    </message>
    <message>
        <source>Try property-panel --help.</source>
        <translation>جرب property-panel --help.</translation>
    </message>
    <message>
        <source>is not an INI file: each line must be a [group], name=value or a ; comment</source>
        <translation>ليس ملف INI: يجب أن يكون كل سطر [مجموعة] أو اسم=قيمة أو ; تعليقًا</translation>
    </message>
    <message>
        <source>a copy cannot be made in %1</source>
        <translation>تتعذر كتابة نسخة في %1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1</source>
        <translation>تتعذر الكتابة إلى الإخراج القياسي: %1</translation>
    </message>
    <message>
        <source>
Exit status:
  0  the values were saved, or what else was asked for was done
  1  the user cancelled, or nobody reads the changes of --live any more and there
     is neither --output nor --settings; no values were written
  2  wrong options, an error in the list or the values, no display to show a
     window on, or pictures that could not be written</source>
        <translation>
حالة الخروج:
  0  حُفظت القيم، أو أُنجز ما طُلب غير ذلك
  1  ألغى المستخدم، أو لم يعد أحد يقرأ تغييرات --live ولا يوجد
     --output ولا --settings؛ لم تُكتب أي قيم
  2  خيارات خاطئة، أو خطأ في القائمة أو القيم، أو لا توجد شاشة لعرض
     نافذة عليها، أو صور تعذرت كتابتها</translation>
    </message>
    <message>
        <source>LTR</source>
        <comment>RTL in languages that are read from right to left</comment>
        <translation>RTL</translation>
    </message>
    <message>
        <source>Look: system (the default), light, dark or high-contrast.</source>
        <translation>المظهر: system (الافتراضي) أو light أو dark أو high-contrast.</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;; choose system, light, dark or high-contrast.</source>
        <translation>لا يوجد مظهر &quot;%1&quot;؛ اختر system أو light أو dark أو high-contrast.</translation>
    </message>
    <message>
        <source>property-panel: error: %1</source>
        <translation>property-panel: خطأ: %1</translation>
    </message>
    <message>
        <source>property-panel: warning: %1</source>
        <translation>property-panel: تحذير: %1</translation>
    </message>
</context>
</TS>
