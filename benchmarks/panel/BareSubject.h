#pragma once

#include "Subject.h"

#include <core/ColorControl.h>

#include <QColor>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSlider;
class QSpinBox;

/// The same rows as widgets put into a form by hand, with a typed store: what a careful programmer
/// writes without any library. Only the colour rows use the widget kit.
class BareSubject final : public Subject
{
public:
    explicit BareSubject(int rows);
    ~BareSubject() override;

    void refresh(int round) override;
    void setExpanded(bool expanded) override;
    QAbstractSlider *slider() override;
    bool updateRow(int row) override;

private:
    class ColorRow;
    struct FractionRow
    {
        QSlider *slider;
        QDoubleSpinBox *field;
        double value;
    };
    struct IntegerRow
    {
        QSlider *slider;
        QSpinBox *field;
        int value;
    };
    struct SwitchRow
    {
        QCheckBox *box;
        bool value;
    };
    struct TextRow
    {
        QLineEdit *edit;
        QString value;
    };
    struct ChoiceRow
    {
        QComboBox *box;
        int value;
    };

    QWidget *makeRow(int row);
    QWidget *makeFraction();
    QWidget *makeInteger();
    QWidget *makeSwitch();
    QWidget *makeText();
    QWidget *makeChoice();
    QWidget *makeColor();
    void store(int round);
    void showAll();
    void showFraction(const FractionRow &row);
    void edited(const FractionRow &row);

    int m_rows;
    QWidget *m_form = nullptr; // owned by the window
    QFormLayout *m_layout = nullptr;
    QCheckBox *m_header = nullptr;
    std::vector<QWidget *> m_grouped; // labels and fields
    std::vector<FractionRow> m_fractions;
    std::vector<IntegerRow> m_integers;
    std::vector<SwitchRow> m_switches;
    std::vector<TextRow> m_texts;
    std::vector<ChoiceRow> m_choices;
    std::vector<std::unique_ptr<ColorRow>> m_colors;
};
