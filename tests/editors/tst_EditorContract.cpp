#include "property/PropertyEditor.h"

#include "support/Registry.h"
#include "support/SignalLog.h"

#include <QColor>
#include <QMetaProperty>
#include <QPixmap>
#include <QPointer>
#include <QSize>
#include <QTest>
#include <QVector2D>
#include <QVector4D>
#include <QWidget>

#include <limits>
#include <memory>

using namespace Tessark::PropertyUI;

namespace {

/// An editor made by the registry, with a property that has a range and nothing else.
struct Subject
{
    explicit Subject(const QString &type)
        : property(QStringLiteral("item"), QStringLiteral("Label"), type)
    {
        property.setRange(0, 10);
    }

    PropertyEditor *make()
    {
        editor.reset(factoryOf(property.type)(&property));
        return editor.get();
    }

    QWidget *build(PropertyEditorContext *context = nullptr)
    {
        if (!editor)
            make();
        if (!widget)
            widget.reset(editor->widget(context));
        return widget.get();
    }

    Property property;
    std::unique_ptr<PropertyEditor> editor;
    std::unique_ptr<QWidget> widget;
};

/// What hosts may hand to any editor, fitting or not.
QVector<QVariant> values()
{
    return {
        QVariant(),
        QVariant::fromValue(nullptr),
        true,
        7,
        -3,
        std::numeric_limits<int>::max(),
        2.5,
        1e300,
        std::numeric_limits<double>::quiet_NaN(),
        QString(),
        QStringLiteral("3, 4"),
        QStringLiteral("no number"),
        QStringList{QStringLiteral("a"), QStringLiteral("b")},
        QSize(3, 4),
        QSize(),
        QColor(10, 20, 30),
        QVector2D(1, 2),
        QVector4D(1, 2, 3, 4),
        QPixmap(2, 2),
    };
}

QVector<QPointer<QWidget>> widgetsOf(QWidget *top)
{
    QVector<QPointer<QWidget>> widgets;
    if (!top)
        return widgets;
    widgets.append(top);
    for (QWidget *child : top->findChildren<QWidget *>())
        widgets.append(child);
    return widgets;
}

void blockAll(QWidget *top, bool block)
{
    for (const QPointer<QWidget> &widget : widgetsOf(top))
        widget->blockSignals(block);
}

/// Classes, texts and states of a widget and all within it: what a hint could have changed.
QStringList describe(QWidget *top)
{
    QStringList description;
    for (const QPointer<QWidget> &widget : widgetsOf(top)) {
        const QMetaObject *meta = widget->metaObject();
        QStringList parts = {QString::fromLatin1(meta->className()), widget->objectName()};
        parts << meta->userProperty().read(widget).toString();
        parts << widget->property("text").toString();
        parts << widget->property("orientation").toString();
        parts << (widget->isEnabled() ? QStringLiteral("on") : QStringLiteral("off"));
        parts << (widget->isHidden() ? QStringLiteral("hidden") : QStringLiteral("shown"));
        description << parts.join(QLatin1Char('|'));
    }
    return description;
}

bool isSame(const Property &left, const Property &right)
{
    return left.name == right.name && left.label == right.label && left.type == right.type
           && left.minValue == right.minValue && left.maxValue == right.maxValue
           && left.hardMaxValue == right.hardMaxValue && left.defaultValue == right.defaultValue
           && left.hints == right.hints;
}

} // namespace

/// What holds for every editor of the library, whichever it is: each test runs once for each type
/// that has an editor in the registry.
class tst_EditorContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();

    void widgetIsBuiltOnceWithoutParent();
    void contextIsNotLookedInto();
    void nothingBeforeTheWidgetDoesHarm();
    void setValueIsSilent();
    void setValuesIsSilent();
    void setValueRestoresBlocking();
    void propertyIsOnlyRead();
    void hostsHintPassesThrough();
    void widgetHintsForHostsChangeNothing();
    void revertWithoutDefaultEmitsNothing();
    void revertEmitsOnce();
    void hostMayConnectByName();
    void editorMayDieBeforeItsWidget();
    void widgetMayDieBeforeItsEditor();
};

void tst_EditorContract::initTestCase_data()
{
    QTest::addColumn<QString>("type");
    for (const LibraryEditor &editor : libraryEditors())
        QTest::newRow(qPrintable(editor.type)) << editor.type;
}

void tst_EditorContract::widgetIsBuiltOnceWithoutParent()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);

    const QWidget *widget = subject.build();

    QCOMPARE(widget == nullptr, type == kPropertyTypeEndTabGroup);
    QCOMPARE(subject.editor->widget(nullptr), widget);
    if (widget) {
        QVERIFY(!widget->parent());
        QVERIFY(!widget->isVisible());
    }
}

void tst_EditorContract::contextIsNotLookedInto()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    // Looking into this one ends the program.
    auto *const context = reinterpret_cast<PropertyEditorContext *>(quintptr(1));

    const QWidget *widget = subject.build(context);

    QCOMPARE(subject.editor->widget(nullptr), widget);
    QCOMPARE(subject.editor->widget(context), widget);
}

void tst_EditorContract::nothingBeforeTheWidgetDoesHarm()
{
    QFETCH_GLOBAL(QString, type);
    Subject untouched(type);
    Subject subject(type);
    PropertyEditor *editor = subject.make();
    SignalLog log(editor);

    for (const QVariant &value : values()) {
        editor->setValue(value);
        editor->setValues({value, value});
        editor->propertyChanged();
        editor->value();
    }

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(describe(subject.build()), describe(untouched.build()));
}

void tst_EditorContract::setValueIsSilent()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    subject.build();
    SignalLog log(subject.editor.get());

    for (const QVariant &value : values()) {
        subject.editor->setValue(value);
        QCOMPARE(log.take(), QStringList());
    }
}

void tst_EditorContract::setValuesIsSilent()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->setValues(values());
    subject.editor->setValues({7, 8});
    subject.editor->setValues({});

    QCOMPARE(log.take(), QStringList());
}

void tst_EditorContract::setValueRestoresBlocking()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    QWidget *top = subject.build();

    for (const bool blocked : {true, false}) {
        blockAll(top, blocked);
        const QVector<QPointer<QWidget>> widgets = widgetsOf(top);
        for (const QVariant &value : values())
            subject.editor->setValue(value);
        for (const QPointer<QWidget> &widget : widgets)
            QVERIFY(!widget || widget->signalsBlocked() == blocked);
    }
}

void tst_EditorContract::propertyIsOnlyRead()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    subject.property.setDefaultValue(1);
    Property expected = subject.property;
    if (type == kPropertyTypeTransform2D) // its constructor asks for the whole row
        expected.setHint(kPropertyHintFullWidth, true);

    subject.build();
    subject.editor->setValue(7);
    subject.editor->propertyChanged();
    subject.editor->revertToDefaultValue();
    subject.editor->hint(kPropertyHintFont);

    QVERIFY(isSame(subject.property, expected));
}

void tst_EditorContract::hostsHintPassesThrough()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    PropertyEditor *editor = subject.make();
    const QString key = QStringLiteral("host/hint");

    QVERIFY(!editor->hint(key).isValid());
    subject.property.setHint(key, 12);
    QCOMPARE(editor->hint(key), QVariant(12));
}

// All widget types but "radio_buttons" are vocabulary for hosts' own editors.
void tst_EditorContract::widgetHintsForHostsChangeNothing()
{
    QFETCH_GLOBAL(QString, type);
    Subject plain(type);
    const QStringList expected = describe(plain.build());

    for (const QString &widgetType :
         {kWidgetTypeSpinBox, kWidgetTypeSlider, kWidgetTypeSliderRed, kWidgetTypeSliderGreen,
          kWidgetTypeSliderBlue, kWidgetTypeSliderAlpha, kWidgetTypeSliderHue,
          kWidgetTypeSliderSaturation, kWidgetTypeSliderLuma}) {
        Subject hinted(type);
        hinted.property.setHint(kPropertyHintWidget, widgetType);
        QCOMPARE(describe(hinted.build()), expected);
    }
}

void tst_EditorContract::revertWithoutDefaultEmitsNothing()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    QWidget *top = subject.build();
    SignalLog log(subject.editor.get());
    const QStringList before = describe(top);

    subject.editor->revertToDefaultValue();
    subject.property.setDefaultValue(QVariant::fromValue(nullptr));
    subject.editor->revertToDefaultValue();

    QCOMPARE(log.take(), QStringList());
    QCOMPARE(describe(top), before);
}

void tst_EditorContract::revertEmitsOnce()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    subject.property.setDefaultValue(1);
    subject.build();
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_EditorContract::hostMayConnectByName()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    const QMetaObject *meta = subject.make()->metaObject();

    QVERIFY(meta->inherits(&PropertyEditor::staticMetaObject));
    QVERIFY(meta->indexOfSignal("valueChanged()") >= 0);
    QVERIFY(meta->indexOfSignal("startInteractiveChange()") >= 0);
    QVERIFY(meta->indexOfSignal("endInteractiveChange()") >= 0);
    QVERIFY(meta->indexOfSlot("revertToDefaultValue()") >= 0);
}

void tst_EditorContract::editorMayDieBeforeItsWidget()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    QWidget *top = subject.build();
    const QPointer<QWidget> topAlive(top);

    subject.editor.reset();
    QCOMPARE(topAlive.data(), top); // the widget tree owns it, not the editor
    for (const QPointer<QWidget> &widget : widgetsOf(top)) {
        if (!widget)
            continue;
        QTest::keyClick(widget.data(), Qt::Key_Up);
        if (widget)
            QTest::keyClick(widget.data(), Qt::Key_Return);
    }
    subject.widget.reset();
}

void tst_EditorContract::widgetMayDieBeforeItsEditor()
{
    QFETCH_GLOBAL(QString, type);
    Subject subject(type);
    subject.build();
    SignalLog log(subject.editor.get());
    const QPointer<PropertyEditor> editorAlive(subject.editor.get());

    subject.widget.reset();
    QVERIFY(editorAlive);
    subject.editor.reset();

    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_EditorContract)
#include "tst_EditorContract.moc"
