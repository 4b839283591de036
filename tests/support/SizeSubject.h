#pragma once

#include "property/PropertyEditor.h"

#include "support/Registry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSize>
#include <QSpinBox>
#include <QTest>
#include <QWidget>

#include <memory>

/// One of the two editors of sizes as the registry makes it, and the controls of its widget.
struct SizeSubject
{
    explicit SizeSubject(const QString &type)
        : property(QStringLiteral("item"), QStringLiteral("Label"), type)
    {
        Tessark::PropertyUI::PropertyEditorPanel::InitialiseRegistry();
        editor.reset(factoryOf(type)(&property));
    }

    // The editor knows the property by its address.
    SizeSubject(const SizeSubject &) = delete;
    SizeSubject &operator=(const SizeSubject &) = delete;

    SizeSubject &setAspectRatio(const QVariant &ratio)
    {
        property.setHint(Tessark::PropertyUI::kPropertyHintAspectRatio, ratio);
        return *this;
    }

    SizeSubject &setFullSize(const QVariant &size)
    {
        property.setHint(Tessark::PropertyUI::kPropertyHintFullSize, size);
        return *this;
    }

    void build()
    {
        widget.reset(editor->widget(nullptr));
        const auto spinBoxes = widget->findChildren<QSpinBox *>();
        if (spinBoxes.size() == 2) {
            width = spinBoxes.at(0);
            height = spinBoxes.at(1);
        }
        check = widget->findChild<QCheckBox *>();
        comboBox = widget->findChild<QComboBox *>();
    }

    void show()
    {
        widget->show();
        widget->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    }

    /// Replaces the text of a field by typing; the editor need not have the focus.
    static void type(QSpinBox *spinBox, const QString &text)
    {
        spinBox->selectAll();
        QTest::keyClicks(spinBox, text);
    }

    QSize shown() const { return {width->value(), height->value()}; }

    Tessark::PropertyUI::Property property;
    std::unique_ptr<Tessark::PropertyUI::PropertyEditor> editor;
    std::unique_ptr<QWidget> widget;
    QSpinBox *width = nullptr;
    QSpinBox *height = nullptr;
    QCheckBox *check = nullptr;    // null when left out
    QComboBox *comboBox = nullptr; // null without full size
};
