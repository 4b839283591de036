#include "property/editors/SizePropertyEditor.h"

#include "support/MarkingTranslator.h"
#include "support/SizeSubject.h"

#include <QHBoxLayout>

using namespace Tessark::PropertyUI;

namespace {

/// A host's editor that decides on a hint itself.
class WideEditor : public SizePropertyEditor
{
public:
    using SizePropertyEditor::SizePropertyEditor;

    QVariant hint(const QString &key) override
    {
        return key == kPropertyHintAspectRatio ? QSize(2, 1) : SizePropertyEditor::hint(key);
    }
};

} // namespace

/// What this editor does alike with the other editor of sizes is tested with their fields.
class tst_SizePropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryMakesTheEditor();
    void isARowWithStretch_data();
    void isARowWithStretch();
    void widgetIsBuiltOnce();
    void fullSizeIsNotRead();
    void hintsComeFromTheEditor();
    void checkBoxTextIsTranslated();
};

void tst_SizePropertyEditor::factoryMakesTheEditor()
{
    Property property(QStringLiteral("s"), QString(), kPropertyTypeSize);
    const std::unique_ptr<PropertyEditor> editor(SizePropertyEditor::Factory(&property));

    QCOMPARE(editor->metaObject()->className(), "Tessark::PropertyUI::SizePropertyEditor");
    QCOMPARE(editor->metaObject()->superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(editor->editedProperty(), &property);
}

void tst_SizePropertyEditor::isARowWithStretch_data()
{
    QTest::addColumn<QSize>("ratio");
    QTest::newRow("with check box") << QSize(16, 9);
    QTest::newRow("without") << QSize(0, 0);
}

void tst_SizePropertyEditor::isARowWithStretch()
{
    QFETCH(QSize, ratio);
    SizeSubject subject(kPropertyTypeSize);
    subject.setAspectRatio(ratio).build();
    const auto *const layout = qobject_cast<QHBoxLayout *>(subject.widget->layout());
    const auto labels = subject.widget->findChildren<QLabel *>();
    QVector<QWidget *> expected{labels.at(0), subject.width, labels.at(1), subject.height};
    if (subject.check)
        expected.append(subject.check);

    QVERIFY(layout);
    QCOMPARE(subject.widget->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), int(expected.size()) + 1);
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), expected.at(i));
        QCOMPARE(layout->stretch(i), 0);
    }
    QVERIFY(layout->itemAt(layout->count() - 1)->spacerItem());
}

void tst_SizePropertyEditor::widgetIsBuiltOnce()
{
    SizeSubject subject(kPropertyTypeSize);
    subject.build();

    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(int(subject.widget->findChildren<QSpinBox *>().size()), 2);
}

void tst_SizePropertyEditor::fullSizeIsNotRead()
{
    SizeSubject subject(kPropertyTypeSize);
    subject.setFullSize(QSize(1920, 1080)).build();

    QVERIFY(!subject.comboBox);
    QVERIFY(subject.width->isEnabled());
    QCOMPARE(subject.shown(), QSize(1, 1));
}

void tst_SizePropertyEditor::hintsComeFromTheEditor()
{
    Property property(QStringLiteral("s"), QString(), kPropertyTypeSize);
    property.setHint(kPropertyHintAspectRatio, QSize(0, 0));
    WideEditor editor(&property);
    const std::unique_ptr<QWidget> widget(editor.widget(nullptr));
    const auto spinBoxes = widget->findChildren<QSpinBox *>();

    spinBoxes.at(0)->setValue(50);

    QCOMPARE(editor.value(), QVariant(QSize(50, 25)));
}

void tst_SizePropertyEditor::checkBoxTextIsTranslated()
{
    const MarkingTranslator translator("Tessark::PropertyUI::SizePropertyEditor");
    SizeSubject subject(kPropertyTypeSize);
    subject.build();

    QCOMPARE(subject.check->text(), QStringLiteral("[Constrain Aspect]"));
}

QTEST_MAIN(tst_SizePropertyEditor)
#include "tst_SizePropertyEditor.moc"
