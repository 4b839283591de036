#include "property/editors/ImageFormatEditor.h"

#include "support/EditorFixture.h"
#include "support/MarkingTranslator.h"
#include "support/SignalLog.h"
#include "support/SliderDrag.h"
#include "support/Wheel.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <limits>

using namespace Tessark::PropertyUI;

namespace {

const QStringList kFormats{QStringLiteral("png"), QStringLiteral("jpeg"), QStringLiteral("tiff"),
                           QStringLiteral("bmp")};
constexpr int kPng = 0;
constexpr int kJpeg = 1;
constexpr int kTiff = 2;

struct Fixture : EditorFixture<ImageFormatEditor, QWidget>
{
    Fixture()
        : EditorFixture(kPropertyTypeImageFormat)
    {
    }

    ImageFormatDesc value() const { return editor->value().value<ImageFormatDesc>(); }

    void setValue(const QString &format, int rate)
    {
        editor->setValue(QVariant::fromValue(ImageFormatDesc{format, rate}));
    }
};

/// With the widget built, and its controls.
struct Subject : Fixture
{
    Subject()
    {
        build();
        buttons = widget->findChildren<QRadioButton *>();
        slider = widget->findChild<QSlider *>();
        spinBox = widget->findChild<QSpinBox *>();
        qualityRow = slider->parentWidget();
        group = buttons.value(0)->group();
    }

    void show()
    {
        widget->resize(400, widget->sizeHint().height());
        widget->show();
        widget->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(widget.get()));
    }

    void click(int id)
    {
        QTest::mouseClick(buttons.at(id), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    }

    bool hasQuality() const { return !qualityRow->isHidden(); }

    QList<QRadioButton *> buttons;
    QButtonGroup *group = nullptr;
    QWidget *qualityRow = nullptr;
    QSlider *slider = nullptr;
    QSpinBox *spinBox = nullptr;
};

const QString kValue = QStringLiteral("value");
const QString kStart = QStringLiteral("start");
const QString kEnd = QStringLiteral("end");

} // namespace

class tst_ImageFormatEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void descIsKnownByName();
    void defaultDescNamesNoFormat();
    void factoryMakesTheEditor();
    void slotsHaveTheirSignatures();
    void formatsStandInTheFirstLine();
    void qualityStandsInTheSecondLine();
    void qualityLabelIsTranslated();
    void widgetIsBuiltOnce();
    void startsWithoutFormat();
    void isHarmlessBeforeItsWidget();
    void setValueShowsSilently_data();
    void setValueShowsSilently();
    void unknownFormatsLeaveTheButtons_data();
    void unknownFormatsLeaveTheButtons();
    void otherTypesCountAsADefaultDesc_data();
    void otherTypesCountAsADefaultDesc();
    void valueOfEachFormat_data();
    void valueOfEachFormat();
    void rateIsKeptWhateverTheFormat();
    void clickEmitsOnceAndShowsTheQuality();
    void keysChooseAFormat();
    void buttonsExcludeOneAnother();
    void dragIsOneRun();
    void sliderKeysEmitOnce();
    void typingIsOneRun();
    void wheelMovesTheSliderAlone();
    void onlyTheEntryFieldIsFiltered();
    void unknownIdHidesTheQuality();
    void revertsToDefault();
    void editorDeletedInAClick();
    void editorDeletedWhileDragging_data();
    void editorDeletedWhileDragging();
    void editorDeletedWhileTyping_data();
    void editorDeletedWhileTyping();
    void groupLivesAsLongAsTheEditor();
};

// Before anything else has asked for the type.
void tst_ImageFormatEditor::initTestCase()
{
    const QByteArray name = QByteArrayLiteral("Tessark::PropertyUI::ImageFormatDesc");
    const int id = QMetaType::type(name);

    QVERIFY(id != QMetaType::UnknownType);
    QCOMPARE(QByteArray(QMetaType::typeName(id)), name);
}

void tst_ImageFormatEditor::descIsKnownByName()
{
    const ImageFormatDesc desc{QStringLiteral("tiff"), 7};

    const QVariant variant = QVariant::fromValue(desc);

    QCOMPARE(int(variant.userType()), QMetaType::type("Tessark::PropertyUI::ImageFormatDesc"));
    QCOMPARE(variant.typeName(), "Tessark::PropertyUI::ImageFormatDesc");
    QCOMPARE(variant.value<ImageFormatDesc>().format, QStringLiteral("tiff"));
    QCOMPARE(variant.value<ImageFormatDesc>().compressionRate, 7);
}

void tst_ImageFormatEditor::defaultDescNamesNoFormat()
{
    const ImageFormatDesc desc;

    QVERIFY(desc.format.isEmpty());
    QCOMPARE(desc.compressionRate, 0);
}

void tst_ImageFormatEditor::factoryMakesTheEditor()
{
    Property property(QStringLiteral("f"), QString(), kPropertyTypeImageFormat);
    const std::unique_ptr<PropertyEditor> editor(ImageFormatEditor::Factory(&property));

    QCOMPARE(editor->metaObject()->className(), "Tessark::PropertyUI::ImageFormatEditor");
    QCOMPARE(editor->metaObject()->superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(editor->editedProperty(), &property);
}

void tst_ImageFormatEditor::slotsHaveTheirSignatures()
{
    const QMetaObject &meta = ImageFormatEditor::staticMetaObject;

    QVERIFY(meta.indexOfSlot("compressionRateChanged(int)") >= 0);
    QVERIFY(meta.indexOfSlot("buttonChecked(int)") >= 0);
}

void tst_ImageFormatEditor::formatsStandInTheFirstLine()
{
    const Subject subject;
    const auto *const layout = qobject_cast<QVBoxLayout *>(subject.widget->layout());
    QWidget plain;
    const QVBoxLayout fresh(&plain);
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), fresh.contentsMargins()); // not zeroed, unlike most rows
    QCOMPARE(layout->count(), 2);
    const auto *const line = qobject_cast<QHBoxLayout *>(layout->itemAt(0)->layout());

    QVERIFY(line);
    QCOMPARE(line->count(), 5);
    for (int id = 0; id < 4; ++id) {
        QCOMPARE(line->itemAt(id)->widget(), subject.buttons.at(id));
        QCOMPARE(subject.buttons.at(id)->text(), kFormats.at(id));
        QCOMPARE(subject.group->id(subject.buttons.at(id)), id);
    }
    QVERIFY(line->itemAt(4)->spacerItem());
    QVERIFY(subject.group->exclusive());
    QVERIFY(!subject.group->parent());
}

void tst_ImageFormatEditor::qualityStandsInTheSecondLine()
{
    const Subject subject;
    const auto *const line = qobject_cast<QHBoxLayout *>(subject.qualityRow->layout());
    QWidget parent;
    QWidget plain(&parent); // the style knows other margins for windows
    const QHBoxLayout fresh(&plain);
    const auto *const label = subject.widget->findChild<QLabel *>();

    QCOMPARE(subject.widget->layout()->itemAt(1)->widget(), subject.qualityRow);
    QCOMPARE(subject.qualityRow->metaObject(), &QWidget::staticMetaObject);
    QVERIFY(line);
    QCOMPARE(line->contentsMargins(), fresh.contentsMargins());
    QCOMPARE(line->count(), 3);
    QCOMPARE(line->itemAt(0)->widget(), label);
    QCOMPARE(label->text(), QStringLiteral("JPEG Quality:"));
    QCOMPARE(line->itemAt(1)->widget(), subject.slider);
    QCOMPARE(subject.slider->orientation(), Qt::Horizontal);
    QCOMPARE(subject.slider->minimum(), 1);
    QCOMPARE(subject.slider->maximum(), 100);
    QCOMPARE(subject.slider->singleStep(), 1);
    QCOMPARE(line->itemAt(2)->widget(), subject.spinBox);
    QCOMPARE(subject.spinBox->minimum(), 1);
    QCOMPARE(subject.spinBox->maximum(), 100);
    QCOMPARE(subject.spinBox->singleStep(), 1);
}

void tst_ImageFormatEditor::qualityLabelIsTranslated()
{
    const MarkingTranslator translator("Tessark::PropertyUI::ImageFormatEditor");
    const Subject subject;

    QCOMPARE(subject.widget->findChild<QLabel *>()->text(), QStringLiteral("[JPEG Quality:]"));
    QCOMPARE(subject.buttons.at(kPng)->text(), QStringLiteral("png")); // a format's own name
}

void tst_ImageFormatEditor::widgetIsBuiltOnce()
{
    const Subject subject;

    QVERIFY(!subject.widget->parent());
    QCOMPARE(subject.widget->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(subject.editor->widget(nullptr), subject.widget.get());
    QCOMPARE(int(subject.widget->findChildren<QRadioButton *>().size()), 4);
}

// The quality is there until a format without it is chosen.
void tst_ImageFormatEditor::startsWithoutFormat()
{
    const Subject subject;

    QCOMPARE(subject.group->checkedId(), -1);
    QCOMPARE(subject.value().format, QString());
    QCOMPARE(subject.value().compressionRate, 1);
    QVERIFY(subject.hasQuality());
}

void tst_ImageFormatEditor::isHarmlessBeforeItsWidget()
{
    Fixture fixture;
    SignalLog log(fixture.editor.get());

    fixture.setValue(QStringLiteral("jpeg"), 80);
    fixture.editor->propertyChanged();
    QCOMPARE(log.take(), QStringList());
    QMetaObject::invokeMethod(fixture.editor.get(), "compressionRateChanged", Q_ARG(int, 5));
    QMetaObject::invokeMethod(fixture.editor.get(), "buttonChecked", Q_ARG(int, 1));

    QCOMPARE(fixture.editor->value().userType(), qMetaTypeId<ImageFormatDesc>());
    QCOMPARE(fixture.value().format, QString());
    QCOMPARE(fixture.value().compressionRate, 0);
}

void tst_ImageFormatEditor::setValueShowsSilently_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("checked");
    QTest::addColumn<int>("shownRate");
    QTest::addColumn<bool>("quality");

    const int lowest = std::numeric_limits<int>::min();
    const int highest = std::numeric_limits<int>::max();
    QTest::newRow("png") << QStringLiteral("png") << 50 << 0 << 50 << false;
    QTest::newRow("jpeg") << QStringLiteral("jpeg") << 75 << 1 << 75 << true;
    QTest::newRow("tiff") << QStringLiteral("tiff") << 100 << 2 << 100 << false;
    QTest::newRow("bmp") << QStringLiteral("bmp") << 1 << 3 << 1 << false;
    QTest::newRow("no rate") << QStringLiteral("jpeg") << 0 << 1 << 1 << true;
    QTest::newRow("rate above") << QStringLiteral("jpeg") << 101 << 1 << 100 << true;
    QTest::newRow("lowest rate") << QStringLiteral("jpeg") << lowest << 1 << 1 << true;
    QTest::newRow("highest rate") << QStringLiteral("jpeg") << highest << 1 << 100 << true;
}

void tst_ImageFormatEditor::setValueShowsSilently()
{
    QFETCH(QString, format);
    QFETCH(int, rate);
    Subject subject;
    SignalLog log(subject.editor.get());
    QSignalSpy groupSpy(subject.group, &QButtonGroup::idToggled);
    QSignalSpy sliderSpy(subject.slider, &QSlider::valueChanged);
    QSignalSpy spinBoxSpy(subject.spinBox, qOverload<int>(&QSpinBox::valueChanged));

    subject.setValue(format, rate);

    QTEST(subject.group->checkedId(), "checked");
    QTEST(subject.slider->value(), "shownRate");
    QTEST(subject.spinBox->value(), "shownRate");
    QTEST(subject.hasQuality(), "quality");
    QCOMPARE(subject.value().format, format);
    QTEST(subject.value().compressionRate, "shownRate");
    QCOMPARE(log.take(), QStringList());
    QVERIFY(groupSpy.isEmpty() && sliderSpy.isEmpty() && spinBoxSpy.isEmpty());
    QVERIFY(!subject.group->signalsBlocked());
}

void tst_ImageFormatEditor::unknownFormatsLeaveTheButtons_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("upper case") << QStringLiteral("JPEG");
    QTest::newRow("short name") << QStringLiteral("jpg");
    QTest::newRow("blank") << QStringLiteral("jpeg ");
    QTest::newRow("another") << QStringLiteral("webp");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
}

void tst_ImageFormatEditor::unknownFormatsLeaveTheButtons()
{
    QFETCH(QString, format);
    Subject fresh;
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 60);

    fresh.setValue(format, 70);
    subject.setValue(format, 70);

    QCOMPARE(fresh.group->checkedId(), -1);
    QCOMPARE(fresh.value().format, QString());
    QVERIFY(!fresh.hasQuality());
    QCOMPARE(subject.group->checkedId(), kJpeg);
    QCOMPARE(subject.value().format, QStringLiteral("jpeg"));
    QCOMPARE(subject.value().compressionRate, 70);
    QVERIFY(!subject.hasQuality()); // follows the record, not the button
}

void tst_ImageFormatEditor::otherTypesCountAsADefaultDesc_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("null") << QVariant::fromValue(nullptr);
    QTest::newRow("text") << QVariant(QStringLiteral("png"));
    QTest::newRow("number") << QVariant(50);
    QTest::newRow("list") << QVariant(QVariantList{QStringLiteral("png"), 50});
}

void tst_ImageFormatEditor::otherTypesCountAsADefaultDesc()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 60);
    SignalLog log(subject.editor.get());

    subject.editor->setValue(value);

    QCOMPARE(subject.group->checkedId(), kJpeg);
    QCOMPARE(subject.value().compressionRate, 1);
    QVERIFY(!subject.hasQuality());
    QCOMPARE(log.take(), QStringList());
}

void tst_ImageFormatEditor::valueOfEachFormat_data()
{
    QTest::addColumn<int>("id");
    for (int id = 0; id < 4; ++id)
        QTest::newRow(qPrintable(kFormats.at(id))) << id;
}

void tst_ImageFormatEditor::valueOfEachFormat()
{
    QFETCH(int, id);
    Subject subject;
    subject.show();
    SignalLog log(subject.editor.get());

    subject.click(id);

    QCOMPARE(subject.editor->value().userType(), qMetaTypeId<ImageFormatDesc>());
    QCOMPARE(subject.value().format, kFormats.at(id));
    QCOMPARE(subject.hasQuality(), id == kJpeg);
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::rateIsKeptWhateverTheFormat()
{
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 60);
    subject.show();

    subject.click(kTiff);
    QCOMPARE(subject.value().compressionRate, 60);
    subject.click(kJpeg);

    QCOMPARE(subject.value().compressionRate, 60);
    QCOMPARE(subject.slider->value(), 60);
}

void tst_ImageFormatEditor::clickEmitsOnceAndShowsTheQuality()
{
    Subject subject;
    subject.show();
    SignalLog log(subject.editor.get());

    subject.click(kPng);
    QVERIFY(!subject.hasQuality());
    QCOMPARE(log.take(), QStringList{kValue});

    subject.click(kJpeg);
    QVERIFY(subject.hasQuality());
    QVERIFY(subject.qualityRow->isVisible());
    QCOMPARE(log.take(), QStringList{kValue});

    subject.click(kJpeg); // again
    QVERIFY(subject.hasQuality());
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::keysChooseAFormat()
{
    Subject subject;
    subject.setValue(QStringLiteral("png"), 50);
    subject.show();
    subject.buttons.at(kPng)->setFocus();
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.buttons.at(kPng), Qt::Key_Right);

    QCOMPARE(subject.value().format, QStringLiteral("jpeg"));
    QVERIFY(subject.hasQuality());
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::buttonsExcludeOneAnother()
{
    Subject subject;
    subject.show();

    subject.click(kPng);
    subject.click(kTiff);

    for (int id = 0; id < 4; ++id)
        QCOMPARE(subject.buttons.at(id)->isChecked(), id == kTiff);
}

void tst_ImageFormatEditor::dragIsOneRun()
{
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    subject.show();
    SignalLog log(subject.editor.get());
    QVector<int> rates;
    connect(subject.editor.get(), &PropertyEditor::valueChanged, this, [&] {
        QCOMPARE(subject.slider->value(), subject.spinBox->value());
        rates.append(subject.value().compressionRate);
    });
    SliderDrag drag(subject.slider);

    drag.press();
    QCOMPARE(log.take(), QStringList{kStart});
    for (int step = 0; step < 5; ++step)
        drag.moveBy(20);
    QCOMPARE(log.take(), (QStringList{kValue, kValue, kValue, kValue, kValue}));
    drag.release();
    QCOMPARE(log.take(), QStringList{kEnd});

    QCOMPARE(int(rates.size()), 5);
    QVERIFY(rates.first() > 20);
    QVERIFY(std::is_sorted(rates.cbegin(), rates.cend()));
    QCOMPARE(subject.value().format, QStringLiteral("jpeg"));
}

void tst_ImageFormatEditor::sliderKeysEmitOnce()
{
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    SignalLog log(subject.editor.get());

    QTest::keyClick(subject.slider, Qt::Key_Right);

    QCOMPARE(subject.spinBox->value(), 21);
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::typingIsOneRun()
{
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    subject.show();
    subject.spinBox->clearFocus();
    SignalLog log(subject.editor.get());

    subject.spinBox->setFocus();
    subject.spinBox->selectAll();
    QTest::keyClicks(subject.spinBox, QStringLiteral("64"));
    QCOMPARE(log.take(), (QStringList{kStart, kValue, kValue}));
    QCOMPARE(subject.slider->value(), 64);
    QCOMPARE(subject.value().compressionRate, 64);

    QTest::keyClick(subject.spinBox, Qt::Key_Return); // the toolkit announces the number again
    QCOMPARE(log.take(), (QStringList{kValue, kEnd, kStart}));
    subject.spinBox->clearFocus();
    QCOMPARE(log.take(), QStringList{kEnd});
}

void tst_ImageFormatEditor::wheelMovesTheSliderAlone()
{
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    subject.show();
    SignalLog log(subject.editor.get());

    turnWheelOver(subject.spinBox);
    QCOMPARE(subject.spinBox->value(), 20);
    QVERIFY(!log.take().contains(kValue)); // the focus that the wheel gives may begin a run

    turnWheelOver(subject.slider);
    QVERIFY(subject.slider->value() > 20);
    QCOMPARE(subject.spinBox->value(), subject.slider->value());
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::onlyTheEntryFieldIsFiltered()
{
    class FilterRecorder : public ImageFormatEditor
    {
    public:
        using ImageFormatEditor::ImageFormatEditor;

        bool eventFilter(QObject *watched, QEvent *) override
        {
            if (!objects.contains(watched))
                objects.append(watched);
            return false;
        }

        QVector<QObject *> objects;
    };
    Property property(QStringLiteral("f"), QString(), kPropertyTypeImageFormat);
    FilterRecorder editor(&property);
    const std::unique_ptr<QWidget> widget(editor.widget(nullptr));

    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));

    QCOMPARE(editor.objects, QVector<QObject *>{widget->findChild<QSpinBox *>()});
}

void tst_ImageFormatEditor::unknownIdHidesTheQuality()
{
    for (const int id : {-1, 4, std::numeric_limits<int>::min()}) {
        Subject subject;
        subject.setValue(QStringLiteral("jpeg"), 20);
        SignalLog log(subject.editor.get());

        QMetaObject::invokeMethod(subject.editor.get(), "buttonChecked", Q_ARG(int, id));

        QVERIFY(!subject.hasQuality());
        QCOMPARE(subject.value().format, QStringLiteral("jpeg"));
        QCOMPARE(log.take(), QStringList{kValue});
    }
}

void tst_ImageFormatEditor::revertsToDefault()
{
    Subject subject;
    subject.property.setDefaultValue(
        QVariant::fromValue(ImageFormatDesc{QStringLiteral("jpeg"), 90}));
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.value().format, QStringLiteral("jpeg"));
    QCOMPARE(subject.value().compressionRate, 90);
    QCOMPARE(log.take(), QStringList{kValue});
}

void tst_ImageFormatEditor::editorDeletedInAClick()
{
    Subject subject;
    subject.show();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });

    subject.click(kPng);

    QVERIFY(!subject.editor);
    QVERIFY(subject.buttons.at(kPng)->isChecked());
    subject.click(kTiff); // the widget goes on alone
    QVERIFY(subject.buttons.at(kTiff)->isChecked());
}

void tst_ImageFormatEditor::editorDeletedWhileDragging_data()
{
    QTest::addColumn<QString>("signal");
    for (const QString &name : {kStart, kValue, kEnd})
        QTest::newRow(qPrintable(name)) << name;
}

void tst_ImageFormatEditor::editorDeletedWhileDragging()
{
    QFETCH(QString, signal);
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    subject.show();
    onSignal(subject.editor.get(), signal, [&] { subject.editor.reset(); });
    SliderDrag drag(subject.slider);

    drag.press();
    drag.moveBy(20);
    drag.moveBy(20);
    drag.release();

    QVERIFY(!subject.editor);
    QVERIFY(subject.slider->value() > 20);
}

void tst_ImageFormatEditor::editorDeletedWhileTyping_data()
{
    editorDeletedWhileDragging_data();
}

void tst_ImageFormatEditor::editorDeletedWhileTyping()
{
    QFETCH(QString, signal);
    Subject subject;
    subject.setValue(QStringLiteral("jpeg"), 20);
    subject.show();
    subject.spinBox->clearFocus();
    onSignal(subject.editor.get(), signal, [&] { subject.editor.reset(); });

    subject.spinBox->setFocus();
    subject.spinBox->selectAll();
    QTest::keyClicks(subject.spinBox, QStringLiteral("64"));
    subject.spinBox->clearFocus();

    QVERIFY(!subject.editor);
    QCOMPARE(subject.spinBox->value(), 64);
}

void tst_ImageFormatEditor::groupLivesAsLongAsTheEditor()
{
    Subject subject;
    const QPointer<QButtonGroup> group(subject.group);

    subject.widget.reset();
    QVERIFY(group);
    subject.editor.reset();
    QVERIFY(!group);
}

QTEST_MAIN(tst_ImageFormatEditor)
#include "tst_ImageFormatEditor.moc"
