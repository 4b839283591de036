// Drags one slider through 1,000 steps on a panel of 1,000 mixed rows whose host writes all values
// back on every step, beside the same widgets driven by hand-written code that does the same sets
// with blocked signals. Both in one run, in turn, in processor time of a step with its repaint.
//
//   bench-slider-drag [REPETITIONS]

#include "benchmarks/Measure.h"

#include <property/DoubleSpinBox.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLineEdit>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include <cstdio>
#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kRows = 1000;
constexpr int kSteps = 1000;
constexpr QSize kWindowSize(420, 800);

/// Half the rows are fractions, the rest whole numbers, switches, texts, choices and vectors.
const QString &typeOf(int row)
{
    static const QString types[20] = {
        kPropertyTypeFloat, kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypeBoolean,
        kPropertyTypeFloat, kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypeString,
        kPropertyTypeFloat, kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypeBoolean,
        kPropertyTypeFloat, kPropertyTypeInteger, kPropertyTypeFloat, kPropertyTypeString,
        kPropertyTypeFloat, kPropertyTypeVec3,    kPropertyTypeFloat, kPropertyTypeEnumeration,
    };
    return types[row % 20];
}

std::vector<std::unique_ptr<Property>> makeProperties()
{
    QStringList choices;
    for (int i = 0; i < 8; ++i)
        choices.append(QStringLiteral("Choice %1").arg(i));
    std::vector<std::unique_ptr<Property>> properties;
    for (int row = 0; row < kRows; ++row) {
        auto property = std::make_unique<Property>(QString::number(row),
                                                   QStringLiteral("Row %1").arg(row), typeOf(row));
        property->setRange(0, 1);
        if (property->type == kPropertyTypeInteger)
            property->setRange(0, 1000);
        else if (property->type == kPropertyTypeVec3)
            property->setRange(0.0F, 1.0F);
        property->setHint(kPropertyHintDisplayValues, choices);
        properties.push_back(std::move(property));
    }
    return properties;
}

QVariant firstValue(const Property &property)
{
    if (property.type == kPropertyTypeFloat)
        return 0.5;
    if (property.type == kPropertyTypeInteger)
        return 500;
    if (property.type == kPropertyTypeBoolean)
        return true;
    if (property.type == kPropertyTypeString)
        return QStringLiteral("some text");
    if (property.type == kPropertyTypeVec3)
        return QVector3D(0.25F, 0.5F, 0.75F);
    return 3;
}

/// A panel in a scrolled window whose first slider is dragged.
class Subject : public IPropertyEditorDelegate
{
public:
    Subject()
        : m_properties(makeProperties())
    {
        QVector<Property *> list;
        for (const auto &property : m_properties) {
            m_values.insert(property.get(), firstValue(*property));
            list.append(property.get());
        }
        m_panel = new PropertyEditorPanel(list, this, nullptr);
        m_panel->updateUI();
        m_window.setWidgetResizable(true);
        m_window.setWidget(m_panel);
        m_window.resize(kWindowSize);
        m_window.show();
        m_slider = m_panel->findChild<QSlider *>();
        settle();
    }

    /// The costs of every step of one drag.
    std::vector<double> drag()
    {
        std::vector<double> costs;
        m_slider->setValue(0);
        m_slider->setSliderDown(true);
        for (int step = 1; step <= kSteps; ++step) {
            costs.push_back(secondsOf([&] {
                m_slider->setSliderPosition(step);
                settle();
            }));
        }
        m_slider->setSliderDown(false);
        return costs;
    }

    void setValue(Property *property, const QVariant &value, ChangeFlags) override
    {
        m_values.insert(property, value);
        m_panel->updateUI();
    }

    QVariant value(Property *property) override { return m_values.value(property); }

protected:
    QScrollArea m_window;
    PropertyEditorPanel *m_panel = nullptr;
    QSlider *m_slider = nullptr;

private:
    std::vector<std::unique_ptr<Property>> m_properties;
    QHash<Property *, QVariant> m_values;
};

/// The same widgets, taken over by hand-written code: the editors are cut off and one typed setter
/// for each row does what they would do.
class BareSubject : public Subject
{
public:
    BareSubject()
    {
        QVector<PropertyEditor *> editors;
        m_panel->getEditors(editors, QString());
        for (PropertyEditor *editor : editors)
            takeOver(editor, editor->widget(nullptr));
        auto *const spinBox = m_slider->parentWidget()->findChild<QDoubleSpinBox *>();
        QObject::connect(m_slider, &QSlider::valueChanged, m_panel, [this, spinBox](int position) {
            {
                const QSignalBlocker blocker(spinBox);
                spinBox->setValue(position / 1000.0);
            }
            m_dragged = spinBox->value();
            for (const auto &set : m_setters)
                set();
        });
    }

private:
    void takeOver(PropertyEditor *editor, QWidget *widget)
    {
        for (QObject *control : widget->findChildren<QWidget *>())
            control->disconnect(editor);
        widget->disconnect(editor);
        const QString &type = editor->editedProperty()->type;
        if (type == kPropertyTypeFloat)
            addFraction(widget);
        else if (type == kPropertyTypeInteger)
            addInteger(widget);
        else if (type == kPropertyTypeVec3)
            addVector(widget);
        else
            addPlain(widget);
    }

    void addFraction(QWidget *widget)
    {
        auto *const slider = widget->findChild<QSlider *>();
        auto *const spinBox = widget->findChild<QDoubleSpinBox *>();
        const bool dragged = slider == m_slider;
        m_setters.push_back([this, slider, spinBox, dragged] {
            const double value = dragged ? m_dragged : 0.5;
            const QSignalBlocker sliderBlocker(slider);
            slider->setValue(int(value * 1000));
            if (!spinBox->hasFocus()) {
                const QSignalBlocker blocker(spinBox);
                spinBox->setValue(value);
            }
        });
    }

    void addInteger(QWidget *widget)
    {
        auto *const slider = widget->findChild<QSlider *>();
        auto *const spinBox = widget->findChild<QSpinBox *>();
        m_setters.push_back([slider, spinBox] {
            const QSignalBlocker sliderBlocker(slider);
            slider->setValue(500);
            const QSignalBlocker blocker(spinBox);
            spinBox->setValue(500);
        });
    }

    void addVector(QWidget *widget)
    {
        const auto boxes = widget->findChildren<QDoubleSpinBox *>();
        m_setters.push_back([boxes] {
            double value = 0.25;
            for (QDoubleSpinBox *box : boxes) {
                const QSignalBlocker blocker(box);
                box->setVisible(true);
                box->setValue(value);
                value += 0.25;
            }
        });
    }

    void addPlain(QWidget *widget)
    {
        if (auto *const box = qobject_cast<QCheckBox *>(widget)) {
            m_setters.push_back([box] {
                const QSignalBlocker blocker(box);
                box->setChecked(true);
            });
        } else if (auto *const edit = qobject_cast<QLineEdit *>(widget)) {
            m_setters.push_back([edit] { edit->setText(QStringLiteral("some text")); });
        } else if (auto *const choice = qobject_cast<QComboBox *>(widget)) {
            m_setters.push_back([choice] {
                const QSignalBlocker blocker(choice);
                choice->setCurrentIndex(3);
            });
        }
    }

    std::vector<std::function<void()>> m_setters;
    double m_dragged = 0;
};

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 5;

    Subject panel;
    BareSubject bare;
    std::vector<double> panelMedians, bareMedians, ratios;
    for (int i = 0; i < repetitions; ++i) {
        bareMedians.push_back(median(bare.drag()));
        panelMedians.push_back(median(panel.drag()));
        ratios.push_back(panelMedians.back() / bareMedians.back());
    }
    std::printf("Qt %s, %d rows, %d steps, %d repetitions, median step in microseconds\n",
                qVersion(), kRows, kSteps, repetitions);
    std::printf("by hand %.1f, panel %.1f, panel : by hand %.3f\n", median(bareMedians) * 1e6,
                median(panelMedians) * 1e6, median(ratios));
    return 0;
}
