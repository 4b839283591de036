#pragma once

#include "property/PropertyExport.h"

#include <QString>

namespace Tessark::PropertyUI {

// All 75 constants have their values from the moment the library is loaded, before any static
// initialiser of a program that links it runs, and never change.

/**
 * Property type strings: the value of Property::type, which selects the editor.
 *
 * A type string is compared whole and case-sensitively; a slash in it is part of the key and is
 * never split. "void", "vec3/color", "ivec2/point", "vec2/point", "angle", "vec2/size",
 * "ivec4/rect" and "vec4/rect" are vocabulary for hosts: the library has no editor for them.
 */
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeNone;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeInteger;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeBoolean;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeFloat;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypePercent;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeVec2;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeVec3;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeVec4;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeEnumeration;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeColor;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeColorRGB;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeImage;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeString;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeStaticText;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeText;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeFilename;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypePoint;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypePointF;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeAngle;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeSizeF;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeRect;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeRectF;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeSeparator;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeBeginGroup;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeEndGroup;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeBeginTabGroup;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeEndTabGroup;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeTab;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeAction;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeRenderSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeImageFormat;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeTransform2D;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyTypeTexture;

/**
 * Widget type strings: values of the kPropertyHintWidget hint.
 *
 * The library itself reads only kWidgetTypeRadioButtons; the others are for editors of hosts.
 */
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSpinBox;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSlider;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderRed;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderGreen;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderBlue;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderAlpha;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderHue;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderSaturation;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeSliderLuma;
extern TESSARK_PROPERTY_EXPORT const QString kWidgetTypeRadioButtons;

/**
 * Hint keys of Property::hints.
 *
 * kPropertyHintForeground, kPropertyHintBackground, kPropertyHintOrientation,
 * kPropertyHintMinimumSize, kPropertyHintMaximumSize and kPropertyHintPreferencesKey are not read
 * by the library; they are for hosts and for editors of hosts.
 */
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintEnabled;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintFullWidth;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintForeground;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintBackground;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintFont;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintAlignment;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintOrientation;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintMinimumSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintMaximumSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintWidget;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintPreferencesKey;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintStyleSheet;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintTabPosition;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintValues;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintDisplayValues;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintShowMultipleCheck;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintShowSliders;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintLogarithmicSlider;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintDisplayScale;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintAspectRatio;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintFullSize;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintBoolHideLabel;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintXfrmNoRotation;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintXfrmNoPosition;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintXfrmNoScale;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintFloatDecimals;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintSuffix;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintXfrmUniformScale;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintXfrmCollapsibleScale;
extern TESSARK_PROPERTY_EXPORT const QString kPropertyHintUseNativeDialogs;

} // namespace Tessark::PropertyUI
