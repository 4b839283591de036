#include "property/PropertyVocabulary.h"

#include <QTest>

#include <algorithm>

using namespace Tessark::PropertyUI;

namespace {

struct Constant
{
    const char *name;
    const QString *constant;
    QString atLoadTime;
    const char *value;
};

#define ROW(name, value)                                                                           \
    {                                                                                              \
#name, &(name), name, value                                                                \
    }

// The copies in it are made by this program's static initialisers, before main() runs.
const Constant kConstants[] = {
    ROW(kPropertyTypeNone, "void"),
    ROW(kPropertyTypeInteger, "int"),
    ROW(kPropertyTypeBoolean, "bool"),
    ROW(kPropertyTypeFloat, "float"),
    ROW(kPropertyTypePercent, "percent"),
    ROW(kPropertyTypeVec2, "vec2"),
    ROW(kPropertyTypeVec3, "vec3"),
    ROW(kPropertyTypeVec4, "vec4"),
    ROW(kPropertyTypeEnumeration, "int/enum"),
    ROW(kPropertyTypeColor, "vec4/color"),
    ROW(kPropertyTypeColorRGB, "vec3/color"),
    ROW(kPropertyTypeImage, "image"),
    ROW(kPropertyTypeString, "string"),
    ROW(kPropertyTypeStaticText, "static_text"),
    ROW(kPropertyTypeText, "text"),
    ROW(kPropertyTypeFilename, "filename"),
    ROW(kPropertyTypePoint, "ivec2/point"),
    ROW(kPropertyTypePointF, "vec2/point"),
    ROW(kPropertyTypeAngle, "angle"),
    ROW(kPropertyTypeSize, "ivec2/size"),
    ROW(kPropertyTypeSizeF, "vec2/size"),
    ROW(kPropertyTypeRect, "ivec4/rect"),
    ROW(kPropertyTypeRectF, "vec4/rect"),
    ROW(kPropertyTypeSeparator, "separator"),
    ROW(kPropertyTypeBeginGroup, "begin_group"),
    ROW(kPropertyTypeEndGroup, "end_group"),
    ROW(kPropertyTypeBeginTabGroup, "begin_tab_group"),
    ROW(kPropertyTypeEndTabGroup, "end_tab_group"),
    ROW(kPropertyTypeTab, "tab"),
    ROW(kPropertyTypeAction, "action"),
    ROW(kPropertyTypeRenderSize, "render_size"),
    ROW(kPropertyTypeImageFormat, "image_format"),
    ROW(kPropertyTypeTransform2D, "transform2D"),
    ROW(kPropertyTypeTexture, "texture"),

    ROW(kWidgetTypeSpinBox, "spin_box"),
    ROW(kWidgetTypeSlider, "slider"),
    ROW(kWidgetTypeSliderRed, "slider_red"),
    ROW(kWidgetTypeSliderGreen, "slider_green"),
    ROW(kWidgetTypeSliderBlue, "slider_blue"),
    ROW(kWidgetTypeSliderAlpha, "slider_alpha"),
    ROW(kWidgetTypeSliderHue, "slider_hue"),
    ROW(kWidgetTypeSliderSaturation, "slider_saturation"),
    ROW(kWidgetTypeSliderLuma, "slider_luma"),
    ROW(kWidgetTypeRadioButtons, "radio_buttons"),

    ROW(kPropertyHintEnabled, "enabled"),
    ROW(kPropertyHintFullWidth, "full_width"),
    ROW(kPropertyHintForeground, "foreground"),
    ROW(kPropertyHintBackground, "background"),
    ROW(kPropertyHintFont, "font"),
    ROW(kPropertyHintAlignment, "alignment"),
    ROW(kPropertyHintOrientation, "orientation"),
    ROW(kPropertyHintSize, "size"),
    ROW(kPropertyHintMinimumSize, "minimum_size"),
    ROW(kPropertyHintMaximumSize, "maximum_size"),
    ROW(kPropertyHintWidget, "widget"),
    ROW(kPropertyHintPreferencesKey, "preferences_key"),
    ROW(kPropertyHintStyleSheet, "style_sheet"),
    ROW(kPropertyHintTabPosition, "tab_position"),
    ROW(kPropertyHintValues, "values"),
    ROW(kPropertyHintDisplayValues, "display_values"),
    ROW(kPropertyHintShowMultipleCheck, "show_multiple_check"),
    ROW(kPropertyHintShowSliders, "show_sliders"),
    ROW(kPropertyHintLogarithmicSlider, "logarithmic_slider"),
    ROW(kPropertyHintDisplayScale, "display_scale"),
    ROW(kPropertyHintAspectRatio, "aspect_ratio"),
    ROW(kPropertyHintFullSize, "full_size"),
    ROW(kPropertyHintBoolHideLabel, "boolean_hide_label"),
    ROW(kPropertyHintXfrmNoRotation, "xfrm_no_rotation"),
    ROW(kPropertyHintXfrmNoPosition, "xfrm_no_position"),
    ROW(kPropertyHintXfrmNoScale, "xfrm_no_scale"),
    ROW(kPropertyHintFloatDecimals, "float_decimals"),
    ROW(kPropertyHintSuffix, "suffix"),
    ROW(kPropertyHintXfrmUniformScale, "xfrm_uniform_scale"),
    ROW(kPropertyHintXfrmCollapsibleScale, "xfrm_collapsible_scale"),
    ROW(kPropertyHintUseNativeDialogs, "use_native_dialogs"),
};

#undef ROW

} // namespace

class tst_PropertyVocabulary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void value_data();
    void value();
    void familyIsComplete_data();
    void familyIsComplete();
};

void tst_PropertyVocabulary::value_data()
{
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("atLoadTime");
    QTest::addColumn<QString>("value");
    for (const Constant &row : kConstants) {
        QTest::newRow(row.name) << *row.constant << row.atLoadTime
                                << QString::fromLatin1(row.value);
    }
}

void tst_PropertyVocabulary::value()
{
    QFETCH(QString, constant);
    QFETCH(QString, atLoadTime);
    QFETCH(QString, value);

    QCOMPARE(constant, value);
    QCOMPARE(atLoadTime, value);
}

void tst_PropertyVocabulary::familyIsComplete_data()
{
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<int>("count");
    QTest::newRow("property types") << QByteArrayLiteral("kPropertyType") << 34;
    QTest::newRow("widget types") << QByteArrayLiteral("kWidgetType") << 10;
    QTest::newRow("hint keys") << QByteArrayLiteral("kPropertyHint") << 31;
}

// Looks over the header, so that a constant can neither go nor come without its row above.
void tst_PropertyVocabulary::familyIsComplete()
{
    QFETCH(QByteArray, prefix);
    QFETCH(int, count);
    QFile header(QStringLiteral(TESSARK_SOURCE_DIR "/property/PropertyVocabulary.h"));
    QVERIFY(header.open(QIODevice::ReadOnly));
    const QByteArray declaration = "extern TESSARK_PROPERTY_EXPORT const QString " + prefix;

    const auto rows =
        std::count_if(std::begin(kConstants), std::end(kConstants), [&prefix](const Constant &row) {
            return QByteArray(row.name).startsWith(prefix);
        });

    QCOMPARE(int(rows), count);
    QCOMPARE(int(header.readAll().count(declaration)), count);
}

QTEST_APPLESS_MAIN(tst_PropertyVocabulary)
#include "tst_PropertyVocabulary.moc"
