#include "support/RecordingDelegate.h"

#include <testing/EditRecorder.h>

#include <QColor>
#include <QTest>
#include <QVector3D>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyTest::EditRecorder;
using TestSupport::RecordingDelegate;

namespace {

/// A delegate that is an object, and can be watched.
class ObjectDelegate final : public QObject, public RecordingDelegate
{
    Q_OBJECT
};

} // namespace

class tst_EditRecorder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesOnWhatItNotes();
    void holdsNoValuesWithoutADelegate();
    void forgetsADelegateThatWasDeleted();
    void mayBeDeletedInWhatTheDelegateIsTold();
    void expectsFlags();
    void expectsEdits();
    void comparesValues_data();
    void comparesValues();

private:
    Property m_gain{QStringLiteral("gain"), QStringLiteral("Gain"), kPropertyTypeFloat};
    Property m_title{QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString};
};

void tst_EditRecorder::passesOnWhatItNotes()
{
    RecordingDelegate store;
    EditRecorder recorder(&store);

    recorder.setValue(&m_gain, 1.5, IPropertyEditorDelegate::NewChange);
    recorder.setValue(&m_gain, 2.5, IPropertyEditorDelegate::ContinuedChange);
    recorder.setValue(&m_title, QStringLiteral("a"), IPropertyEditorDelegate::NewChange);

    QCOMPARE(store.log(), (QStringList{QStringLiteral("gain=1.5/0"), QStringLiteral("gain=2.5/1"),
                                       QStringLiteral("title=a/0")}));
    QCOMPARE(recorder.value(&m_gain), QVariant(2.5));
    QCOMPARE(recorder.flags(), (QVector<int>{0, 1, 0}));
    QCOMPARE(recorder.values(QStringLiteral("gain")), (QVariantList{1.5, 2.5}));
    QCOMPARE(recorder.edits().last().name, QStringLiteral("title"));
    recorder.clear();
    QVERIFY(recorder.edits().isEmpty());
}

void tst_EditRecorder::holdsNoValuesWithoutADelegate()
{
    EditRecorder recorder(nullptr);
    recorder.setValue(&m_gain, 1.5, {});
    QCOMPARE(recorder.edits().size(), 1);
    QVERIFY(!recorder.value(&m_gain).isValid());
}

void tst_EditRecorder::forgetsADelegateThatWasDeleted()
{
    auto store = std::make_unique<ObjectDelegate>();
    EditRecorder recorder(store.get());
    QCOMPARE(recorder.delegate(), static_cast<IPropertyEditorDelegate *>(store.get()));

    store.reset();
    recorder.setValue(&m_gain, 1.5, {});

    QVERIFY(!recorder.delegate());
    QCOMPARE(recorder.edits().size(), 1);
}

void tst_EditRecorder::mayBeDeletedInWhatTheDelegateIsTold()
{
    RecordingDelegate store;
    auto *const recorder = new EditRecorder(&store);
    store.onSetValue = [recorder] { delete recorder; };
    recorder->setValue(&m_gain, 1.5, {});
    QCOMPARE(store.changes.size(), 1);
}

void tst_EditRecorder::expectsFlags()
{
    EditRecorder recorder(nullptr);
    QVERIFY(recorder.expectFlags({}));
    recorder.setValue(&m_gain, 1.5, IPropertyEditorDelegate::NewChange);
    recorder.setValue(&m_gain, 2, IPropertyEditorDelegate::ContinuedChange);

    QVERIFY(recorder.expectFlags({0, 1}));
    QCOMPARE(recorder.error(), QString());
    QVERIFY(!recorder.expectFlags({0, 1, 1}));
    QCOMPARE(recorder.error(), QStringLiteral("expected flags 0,1,1; the edits are: "
                                              "gain = 1.5 (0), gain = 2 (1)"));
}

void tst_EditRecorder::expectsEdits()
{
    EditRecorder recorder(nullptr);
    recorder.setValue(&m_gain, 1.5, IPropertyEditorDelegate::NewChange);
    recorder.setValue(&m_title, QStringLiteral("a"), IPropertyEditorDelegate::NewChange);

    QVERIFY(recorder.expectEdits(QStringLiteral("gain"), {1.5}));
    QVERIFY(recorder.expectEdits(QStringLiteral("title"), {QStringLiteral("a")}));
    QVERIFY(recorder.expectEdits(QStringLiteral("other"), {}));
    QVERIFY(!recorder.expectEdits(QStringLiteral("gain"), {}));
    QVERIFY(recorder.error().startsWith(QStringLiteral("expected gain = no edits; ")));
    QVERIFY(!recorder.expectEdits(QStringLiteral("gain"), {1.5, 2}));
    QVERIFY(!recorder.expectEdits(QStringLiteral("gain"), {1.6}));
    QVERIFY(recorder.error().startsWith(QStringLiteral("expected gain = 1.6; ")));
}

void tst_EditRecorder::comparesValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<bool>("same");

    const auto text = [](const char *latin) { return QVariant(QString::fromLatin1(latin)); };
    QTest::newRow("rounded number") << QVariant(0.7F) << QVariant(0.7) << true;
    QTest::newRow("other number") << QVariant(0.7) << QVariant(0.701) << false;
    QTest::newRow("number as text") << QVariant(3) << text("3.0") << true;
    QTest::newRow("no number") << QVariant(0) << text("x") << false;
    QTest::newRow("number and nothing") << QVariant() << QVariant(0) << false;
    QTest::newRow("bool as text") << QVariant(true) << text("true") << true;
    QTest::newRow("size as text") << QVariant(QSize(2, 3)) << text("2 3") << true;
    QTest::newRow("part of a size") << QVariant(QSize(2, 3)) << text("2") << false;
    QTest::newRow("vector") << QVariant(QVector3D(1, 2, 3)) << text("1 2 3") << true;
    QTest::newRow("colour by name") << QVariant(QColor(255, 0, 0)) << text("red") << true;
    QTest::newRow("colour by fractions") << QVariant(QColor(255, 0, 0)) << text("1 0 0") << true;
    QTest::newRow("other colour") << QVariant(QColor(255, 0, 0)) << text("#ff0001") << false;
    QTest::newRow("text") << text("a b") << text("a b") << true;
    QTest::newRow("text like a number") << text("1.0") << text("1") << false;
    QTest::newRow("nothing") << QVariant() << QVariant() << true;
    QTest::newRow("nothing as text") << QVariant() << text("nothing") << true;
}

void tst_EditRecorder::comparesValues()
{
    QFETCH(QVariant, value);
    QFETCH(QVariant, expected);
    QFETCH(bool, same);
    EditRecorder recorder(nullptr);

    recorder.setValue(&m_gain, value, {});

    QCOMPARE(recorder.expectEdits(QStringLiteral("gain"), {expected}), same);
}

QTEST_MAIN(tst_EditRecorder)
#include "tst_EditRecorder.moc"
