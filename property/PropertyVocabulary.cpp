#include "property/PropertyVocabulary.h"

namespace Tessark::PropertyUI {

// One translation unit holds them all, so that they are initialised together and in this order
// when the library is loaded. No other static initialiser of the library may read them.

const QString kPropertyTypeNone = QStringLiteral("void");
const QString kPropertyTypeInteger = QStringLiteral("int");
const QString kPropertyTypeBoolean = QStringLiteral("bool");
const QString kPropertyTypeFloat = QStringLiteral("float");
const QString kPropertyTypePercent = QStringLiteral("percent");
const QString kPropertyTypeVec2 = QStringLiteral("vec2");
const QString kPropertyTypeVec3 = QStringLiteral("vec3");
const QString kPropertyTypeVec4 = QStringLiteral("vec4");
const QString kPropertyTypeEnumeration = QStringLiteral("int/enum");
const QString kPropertyTypeColor = QStringLiteral("vec4/color");
const QString kPropertyTypeColorRGB = QStringLiteral("vec3/color");
const QString kPropertyTypeImage = QStringLiteral("image");
const QString kPropertyTypeString = QStringLiteral("string");
const QString kPropertyTypeStaticText = QStringLiteral("static_text");
const QString kPropertyTypeText = QStringLiteral("text");
const QString kPropertyTypeFilename = QStringLiteral("filename");
const QString kPropertyTypePoint = QStringLiteral("ivec2/point");
const QString kPropertyTypePointF = QStringLiteral("vec2/point");
const QString kPropertyTypeAngle = QStringLiteral("angle");
const QString kPropertyTypeSize = QStringLiteral("ivec2/size");
const QString kPropertyTypeSizeF = QStringLiteral("vec2/size");
const QString kPropertyTypeRect = QStringLiteral("ivec4/rect");
const QString kPropertyTypeRectF = QStringLiteral("vec4/rect");
const QString kPropertyTypeSeparator = QStringLiteral("separator");
const QString kPropertyTypeBeginGroup = QStringLiteral("begin_group");
const QString kPropertyTypeEndGroup = QStringLiteral("end_group");
const QString kPropertyTypeBeginTabGroup = QStringLiteral("begin_tab_group");
const QString kPropertyTypeEndTabGroup = QStringLiteral("end_tab_group");
const QString kPropertyTypeTab = QStringLiteral("tab");
const QString kPropertyTypeAction = QStringLiteral("action");
const QString kPropertyTypeRenderSize = QStringLiteral("render_size");
const QString kPropertyTypeImageFormat = QStringLiteral("image_format");
const QString kPropertyTypeTransform2D = QStringLiteral("transform2D");
const QString kPropertyTypeTexture = QStringLiteral("texture");

const QString kWidgetTypeSpinBox = QStringLiteral("spin_box");
const QString kWidgetTypeSlider = QStringLiteral("slider");
const QString kWidgetTypeSliderRed = QStringLiteral("slider_red");
const QString kWidgetTypeSliderGreen = QStringLiteral("slider_green");
const QString kWidgetTypeSliderBlue = QStringLiteral("slider_blue");
const QString kWidgetTypeSliderAlpha = QStringLiteral("slider_alpha");
const QString kWidgetTypeSliderHue = QStringLiteral("slider_hue");
const QString kWidgetTypeSliderSaturation = QStringLiteral("slider_saturation");
const QString kWidgetTypeSliderLuma = QStringLiteral("slider_luma");
const QString kWidgetTypeRadioButtons = QStringLiteral("radio_buttons");

const QString kPropertyHintEnabled = QStringLiteral("enabled");
const QString kPropertyHintFullWidth = QStringLiteral("full_width");
const QString kPropertyHintForeground = QStringLiteral("foreground");
const QString kPropertyHintBackground = QStringLiteral("background");
const QString kPropertyHintFont = QStringLiteral("font");
const QString kPropertyHintAlignment = QStringLiteral("alignment");
const QString kPropertyHintOrientation = QStringLiteral("orientation");
const QString kPropertyHintSize = QStringLiteral("size");
const QString kPropertyHintMinimumSize = QStringLiteral("minimum_size");
const QString kPropertyHintMaximumSize = QStringLiteral("maximum_size");
const QString kPropertyHintWidget = QStringLiteral("widget");
const QString kPropertyHintPreferencesKey = QStringLiteral("preferences_key");
const QString kPropertyHintStyleSheet = QStringLiteral("style_sheet");
const QString kPropertyHintTabPosition = QStringLiteral("tab_position");
const QString kPropertyHintValues = QStringLiteral("values");
const QString kPropertyHintDisplayValues = QStringLiteral("display_values");
const QString kPropertyHintShowMultipleCheck = QStringLiteral("show_multiple_check");
const QString kPropertyHintShowSliders = QStringLiteral("show_sliders");
const QString kPropertyHintLogarithmicSlider = QStringLiteral("logarithmic_slider");
const QString kPropertyHintDisplayScale = QStringLiteral("display_scale");
const QString kPropertyHintAspectRatio = QStringLiteral("aspect_ratio");
const QString kPropertyHintFullSize = QStringLiteral("full_size");
const QString kPropertyHintBoolHideLabel = QStringLiteral("boolean_hide_label");
const QString kPropertyHintXfrmNoRotation = QStringLiteral("xfrm_no_rotation");
const QString kPropertyHintXfrmNoPosition = QStringLiteral("xfrm_no_position");
const QString kPropertyHintXfrmNoScale = QStringLiteral("xfrm_no_scale");
const QString kPropertyHintFloatDecimals = QStringLiteral("float_decimals");
const QString kPropertyHintSuffix = QStringLiteral("suffix");
const QString kPropertyHintXfrmUniformScale = QStringLiteral("xfrm_uniform_scale");
const QString kPropertyHintXfrmCollapsibleScale = QStringLiteral("xfrm_collapsible_scale");
const QString kPropertyHintUseNativeDialogs = QStringLiteral("use_native_dialogs");

} // namespace Tessark::PropertyUI
