#include "property/editors/ImageFormatEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Subject : EditorFixture<ImageFormatEditor, QWidget>
{
    Subject()
        : EditorFixture(kPropertyTypeImageFormat)
    {
    }

    ImageFormatDesc value() const { return editor->value().value<ImageFormatDesc>(); }
};

} // namespace

class tst_ImageFormatEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void descIsKnownByName();
    void defaultDescNamesNoFormat();
    void nothingIsCheckedAtFirst();
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

    QCOMPARE(variant.userType(), QMetaType::type("Tessark::PropertyUI::ImageFormatDesc"));
    QCOMPARE(variant.value<ImageFormatDesc>().format, QStringLiteral("tiff"));
    QCOMPARE(variant.value<ImageFormatDesc>().compressionRate, 7);
}

void tst_ImageFormatEditor::defaultDescNamesNoFormat()
{
    const ImageFormatDesc desc;

    QVERIFY(desc.format.isEmpty());
    QCOMPARE(desc.compressionRate, 0);
}

void tst_ImageFormatEditor::nothingIsCheckedAtFirst()
{
    Subject subject;
    QCOMPARE(subject.value().format, QString());
    QCOMPARE(subject.value().compressionRate, 0);

    const auto buttons = subject.build()->findChildren<QRadioButton *>();

    QCOMPARE(int(buttons.size()), 4);
    for (const QRadioButton *button : buttons)
        QVERIFY(!button->isChecked());
    QCOMPARE(subject.value().format, QString());
    QCOMPARE(subject.value().compressionRate, 1);
}

QTEST_MAIN(tst_ImageFormatEditor)
#include "tst_ImageFormatEditor.moc"
