#pragma once

#include "property/PropertyExport.h"

#include <QDoubleSpinBox>
#include <QLocale>
#include <QString>

namespace Tessark::PropertyUI {

/**
 * A decimal spin box that shows its value without trailing zeros and without group separators, in
 * the widget's locale.
 *
 * Typing at the end of the text past decimals() drops the further digit instead of refusing it. It
 * has no meta-object of its own: style sheets and casts see a QDoubleSpinBox.
 */
class TESSARK_PROPERTY_EXPORT DoubleSpinBox : public QDoubleSpinBox
{
public:
    explicit DoubleSpinBox(QWidget *parent = nullptr);
    ~DoubleSpinBox() override;

    QValidator::State validate(QString &input, int &pos) const override;
    QString textFromValue(double value) const override;

private:
    QString makeText(double value) const;

    // The last text made: a field that is refreshed asks for the same one each time.
    mutable QString m_text;
    mutable QLocale m_textLocale;
    mutable double m_textValue = 0;
    mutable int m_textDecimals = -1;
};

} // namespace Tessark::PropertyUI
