#include "property/editors/ImagePropertyEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QBitmap>
#include <QBrush>
#include <QIconEngine>
#include <QImage>
#include <QLabel>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Subject : EditorFixture<ImagePropertyEditor, QLabel>
{
    Subject()
        : EditorFixture(kPropertyTypeImage)
    {
    }

    QPixmap value() const { return editor->value().value<QPixmap>(); }
};

QPixmap pixmapOf(const QColor &color, const QSize &size = QSize(4, 3))
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

/// What an icon was asked for.
struct Request
{
    QSize size;
    QIcon::Mode mode = QIcon::Disabled;
    QIcon::State state = QIcon::On;
};

/// Draws any size in red and notes what it is asked for.
class RecordingEngine : public QIconEngine
{
public:
    explicit RecordingEngine(QVector<Request> *requests)
        : m_requests(requests)
    {
    }

    void paint(QPainter *, const QRect &, QIcon::Mode, QIcon::State) override {}

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        m_requests->append({size, mode, state});
        return pixmapOf(Qt::red, size);
    }

    QIconEngine *clone() const override { return new RecordingEngine(m_requests); }

private:
    QVector<Request> *m_requests;
};

} // namespace

class tst_ImagePropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factoryMakesTheEditor();
    void isALabelWithoutText();
    void isHarmlessBeforeItsWidget();
    void absentAlignmentLeavesTheDefault_data();
    void absentAlignmentLeavesTheDefault();
    void alignmentHint_data();
    void alignmentHint();
    void alignmentHintIsReadOnce();
    void picturesComeBackAsPixmaps_data();
    void picturesComeBackAsPixmaps();
    void pixmapIsShownAsItIs();
    void iconIsDrawnAtTheInitialSize();
    void iconIsDrawnAtTheCurrentSize();
    void smallIconIsNotEnlarged();
    void nullPictureGivesNoValue_data();
    void nullPictureGivesNoValue();
    void otherTypesAreIgnored_data();
    void otherTypesAreIgnored();
    void nothingTheUserDoesEmits();
    void setValueIsSilent();
    void revertShowsTheDefaultAndEmitsOnce();
    void hostMayDeleteTheEditorOnRevert();
};

void tst_ImagePropertyEditor::factoryMakesTheEditor()
{
    Property property(QStringLiteral("i"), QString(), kPropertyTypeImage);
    const std::unique_ptr<PropertyEditor> editor(ImagePropertyEditor::Factory(&property));

    QCOMPARE(editor->metaObject()->className(), "Tessark::PropertyUI::ImagePropertyEditor");
    QCOMPARE(editor->metaObject()->superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(editor->editedProperty(), &property);
}

void tst_ImagePropertyEditor::isALabelWithoutText()
{
    Subject subject;

    const QLabel *label = subject.build();

    QVERIFY(label);
    QVERIFY(!label->parent());
    QCOMPARE(label->metaObject(), &QLabel::staticMetaObject);
    QCOMPARE(label->text(), QString());
    QVERIFY(!label->hasScaledContents());
    QCOMPARE(subject.editor->widget(nullptr), label);
    QVERIFY(!subject.editor->value().isValid());
}

void tst_ImagePropertyEditor::isHarmlessBeforeItsWidget()
{
    Subject subject;

    subject.editor->setValue(pixmapOf(Qt::red));
    subject.editor->propertyChanged();

    QVERIFY(!subject.editor->value().isValid());
    subject.build();
    QVERIFY(!subject.editor->value().isValid());
}

void tst_ImagePropertyEditor::absentAlignmentLeavesTheDefault_data()
{
    QTest::addColumn<bool>("present");
    QTest::newRow("absent") << false;
    QTest::newRow("an invalid variant counts as absent") << true;
}

void tst_ImagePropertyEditor::absentAlignmentLeavesTheDefault()
{
    QFETCH(bool, present);
    Subject subject;
    if (present)
        subject.property.setHint(kPropertyHintAlignment, QVariant());

    QCOMPARE(int(subject.build()->alignment()), int(QLabel().alignment()));
}

void tst_ImagePropertyEditor::alignmentHint_data()
{
    QTest::addColumn<QVariant>("hint");
    QTest::addColumn<int>("alignment");
    QTest::newRow("right") << QVariant(int(Qt::AlignRight)) << int(Qt::AlignRight);
    QTest::newRow("right and bottom")
        << QVariant(int(Qt::AlignRight | Qt::AlignBottom)) << int(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("a number as text") << QVariant(QStringLiteral("2")) << int(Qt::AlignRight);
    QTest::newRow("zero, no bits") << QVariant(0) << 0;
    QTest::newRow("unconvertible") << QVariant(QStringLiteral("right")) << 0;
}

void tst_ImagePropertyEditor::alignmentHint()
{
    QFETCH(QVariant, hint);
    QFETCH(int, alignment);
    Subject subject;
    subject.property.setHint(kPropertyHintAlignment, hint);

    QCOMPARE(int(subject.build()->alignment()), alignment);
}

void tst_ImagePropertyEditor::alignmentHintIsReadOnce()
{
    Subject subject;
    const QLabel *label = subject.build();
    const int atFirst = int(label->alignment());

    subject.property.setHint(kPropertyHintAlignment, int(Qt::AlignRight));
    subject.editor->propertyChanged();

    QCOMPARE(int(label->alignment()), atFirst);
}

void tst_ImagePropertyEditor::picturesComeBackAsPixmaps_data()
{
    QTest::addColumn<QVariant>("value");
    const QPixmap pixmap = pixmapOf(Qt::blue);
    QTest::newRow("pixmap") << QVariant(pixmap);
    QTest::newRow("image") << QVariant(pixmap.toImage());
    QTest::newRow("image of another format")
        << QVariant(pixmap.toImage().convertToFormat(QImage::Format_Indexed8));
    QTest::newRow("icon") << QVariant(QIcon(pixmap));
}

void tst_ImagePropertyEditor::picturesComeBackAsPixmaps()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build();

    subject.editor->setValue(value);

    QCOMPARE(int(subject.editor->value().userType()), int(QMetaType::QPixmap));
    QCOMPARE(subject.value().size(), QSize(4, 3));
    QCOMPARE(subject.value().toImage().pixelColor(1, 1), QColor(Qt::blue));
}

void tst_ImagePropertyEditor::pixmapIsShownAsItIs()
{
    Subject subject;
    QPixmap pixmap = pixmapOf(QColor(0, 255, 0, 100), QSize(800, 700)); // larger than the label
    pixmap.setDevicePixelRatio(2);
    subject.build();

    subject.editor->setValue(pixmap);

    QCOMPARE(subject.value().cacheKey(), pixmap.cacheKey());
    QCOMPARE(subject.value().devicePixelRatio(), 2.0);
    QCOMPARE(subject.widget->sizeHint(), QSize(400, 350));
}

void tst_ImagePropertyEditor::iconIsDrawnAtTheInitialSize()
{
    Subject subject;
    QVector<Request> requests;
    const QSize initialSize = subject.build()->size();

    subject.editor->setValue(QIcon(new RecordingEngine(&requests)));

    QCOMPARE(int(requests.size()), 1);
    QCOMPARE(requests.first().size, initialSize);
    QCOMPARE(requests.first().mode, QIcon::Normal);
    QCOMPARE(requests.first().state, QIcon::Off);
    QCOMPARE(subject.value().size(), initialSize);
}

void tst_ImagePropertyEditor::iconIsDrawnAtTheCurrentSize()
{
    Subject subject;
    QVector<Request> requests;
    subject.build()->resize(32, 16);
    subject.widget->setEnabled(false); // the mode is normal all the same

    subject.editor->setValue(QIcon(new RecordingEngine(&requests)));
    subject.widget->resize(64, 64);

    QCOMPARE(int(requests.size()), 1); // drawn once, whatever becomes of the label
    QCOMPARE(requests.first().size, QSize(32, 16));
    QCOMPARE(requests.first().mode, QIcon::Normal);
    QCOMPARE(subject.value().size(), QSize(32, 16));
}

void tst_ImagePropertyEditor::smallIconIsNotEnlarged()
{
    Subject subject;
    subject.build()->resize(100, 100);

    subject.editor->setValue(QIcon(pixmapOf(Qt::red, QSize(16, 16))));
    QCOMPARE(subject.value().size(), QSize(16, 16));
    subject.editor->setValue(QIcon(pixmapOf(Qt::red, QSize(400, 200))));
    QCOMPARE(subject.value().size(), QSize(100, 50));
}

void tst_ImagePropertyEditor::nullPictureGivesNoValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("pixmap") << QVariant(QPixmap());
    QTest::newRow("image") << QVariant(QImage());
    QTest::newRow("icon") << QVariant(QIcon());
}

void tst_ImagePropertyEditor::nullPictureGivesNoValue()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build();
    subject.editor->setValue(pixmapOf(Qt::red));

    subject.editor->setValue(value);

    QVERIFY(!subject.editor->value().isValid());
    QVERIFY(subject.widget->text().isEmpty());
}

void tst_ImagePropertyEditor::otherTypesAreIgnored_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("invalid") << QVariant();
    QTest::newRow("null") << QVariant::fromValue(nullptr);
    QTest::newRow("text") << QVariant(QStringLiteral("picture.png"));
    QTest::newRow("bytes") << QVariant(QByteArrayLiteral("P1 1 1 1"));
    QTest::newRow("colour") << QVariant(QColor(Qt::green));
    QTest::newRow("number") << QVariant(7);
    QTest::newRow("bitmap") << QVariant(QBitmap(2, 2));
    QTest::newRow("brush") << QVariant(QBrush(pixmapOf(Qt::green)));
}

void tst_ImagePropertyEditor::otherTypesAreIgnored()
{
    QFETCH(QVariant, value);
    Subject subject;
    subject.build();
    const QPixmap pixmap = pixmapOf(Qt::red);

    subject.editor->setValue(value);
    QVERIFY(!subject.editor->value().isValid());
    subject.editor->setValue(pixmap);
    subject.editor->setValue(value);

    QCOMPARE(subject.value().cacheKey(), pixmap.cacheKey());
    QVERIFY(subject.widget->text().isEmpty());
}

void tst_ImagePropertyEditor::nothingTheUserDoesEmits()
{
    Subject subject;
    QLabel *label = subject.build();
    subject.editor->setValue(pixmapOf(Qt::red));
    SignalLog log(subject.editor.get());

    QTest::mouseClick(label, Qt::LeftButton);
    QTest::keyClicks(label, QStringLiteral("abc"));
    QTest::keyClick(label, Qt::Key_Return);

    QCOMPARE(log.take(), QStringList());
}

void tst_ImagePropertyEditor::setValueIsSilent()
{
    Subject subject;
    subject.build();
    SignalLog log(subject.editor.get());

    for (const QVariant &value : {QVariant(pixmapOf(Qt::red)), QVariant(QImage()), QVariant(3)})
        subject.editor->setValue(value);

    QCOMPARE(log.take(), QStringList());
}

void tst_ImagePropertyEditor::revertShowsTheDefaultAndEmitsOnce()
{
    Subject subject;
    subject.property.setDefaultValue(pixmapOf(Qt::blue).toImage());
    subject.build();
    subject.editor->setValue(pixmapOf(Qt::red));
    SignalLog log(subject.editor.get());

    subject.editor->revertToDefaultValue();

    QCOMPARE(subject.value().toImage().pixelColor(1, 1), QColor(Qt::blue));
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_ImagePropertyEditor::hostMayDeleteTheEditorOnRevert()
{
    Subject subject;
    subject.property.setDefaultValue(pixmapOf(Qt::blue));
    subject.build();
    connect(subject.editor.get(), &PropertyEditor::valueChanged, qApp,
            [&] { subject.editor.reset(); });

    subject.editor->revertToDefaultValue();

    QVERIFY(!subject.editor);
}

QTEST_MAIN(tst_ImagePropertyEditor)
#include "tst_ImagePropertyEditor.moc"
