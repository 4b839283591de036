#include <host/PropertyList.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>
#include <property/TextureChoice.h>
#include <property/editors/ImageFormatEditor.h>
#include <tools/property-panel/LivePrinter.h>

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryFile>
#include <QTest>

#include <memory>

#include <unistd.h>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::CommitMode;
using Tessark::PropertyHost::PropertyList;
using Tessark::PropertyHost::PropertyStore;
using Tessark::PropertyPanel::LivePrinter;

namespace {

/// Sends standard output to a file while it lives.
class Capture
{
public:
    Capture()
        : m_before(dup(STDOUT_FILENO))
    {
        if (!m_file.open() || dup2(m_file.handle(), STDOUT_FILENO) < 0)
            qFatal("cannot capture standard output");
    }

    ~Capture() { restore(); }

    Capture(const Capture &) = delete;
    Capture &operator=(const Capture &) = delete;

    qint64 size() const { return QFileInfo(m_file).size(); }

    QByteArray text()
    {
        restore();
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    void restore()
    {
        if (m_before < 0)
            return;
        dup2(m_before, STDOUT_FILENO);
        close(m_before);
        m_before = -1;
    }

    QTemporaryFile m_file;
    int m_before;
};

} // namespace

class tst_LivePrinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changeIsOneLine();
    void lineIsThereAtOnce();
    void continuedChangesAreMarked();
    void unchangedValueIsNotPrinted();
    void actionIsPrintedEachTimeAsNull();
    void absentValueIsNotPrinted();
    void picturesAndTexturesArePrintedAsText();
    void lineBreaksAreEscaped();
    void foldingAndTurningPagesAreNoChanges_data();
    void foldingAndTurningPagesAreNoChanges();
    void runIsOneLineAtItsEnd();
    void limitedRunPrintsItsFirstAndLastChange();
    void actionIsPrintedEachTimeInEveryMode();
    void whatWaitsIsPrintedAtLast();

private:
    Property m_gain{QStringLiteral("gain"), QStringLiteral("Gain"), kPropertyTypeFloat};
    Property m_title{QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString};
};

void tst_LivePrinter::changeIsOneLine()
{
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Capture output;

    store.setValue(&m_title, QStringLiteral("a"), PropertyStore::NewChange);

    QCOMPARE(output.text(),
             QByteArray("{\"continued\":false,\"name\":\"title\",\"value\":\"a\"}\n"));
}

void tst_LivePrinter::lineIsThereAtOnce()
{
    PropertyStore store;
    const LivePrinter printer({}, &store);
    int descriptors[2];
    QCOMPARE(pipe(descriptors), 0);
    const int before = dup(STDOUT_FILENO);
    dup2(descriptors[1], STDOUT_FILENO);

    store.setValue(&m_title, QStringLiteral("a"), PropertyStore::NewChange);
    char text[100] = {};
    const auto length = ::read(descriptors[0], text, sizeof text - 1);

    dup2(before, STDOUT_FILENO);
    for (const int descriptor : {before, descriptors[0], descriptors[1]})
        close(descriptor);
    QCOMPARE(QByteArray(text, int(length)),
             QByteArray("{\"continued\":false,\"name\":\"title\",\"value\":\"a\"}\n"));
}

void tst_LivePrinter::continuedChangesAreMarked()
{
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Property gain(QStringLiteral("gain"), QStringLiteral("Gain"), kPropertyTypeFloat);
    Capture output;

    store.setValue(&gain, 0.5, PropertyStore::NewChange);
    store.setValue(&gain, 0.75, PropertyStore::ContinuedChange);

    QCOMPARE(output.text(), QByteArray("{\"continued\":false,\"name\":\"gain\",\"value\":0.5}\n"
                                       "{\"continued\":true,\"name\":\"gain\",\"value\":0.75}\n"));
}

void tst_LivePrinter::unchangedValueIsNotPrinted()
{
    PropertyList list;
    Property &title = list.append(m_title).setDefaultValue(QStringLiteral("a"));
    PropertyStore store;
    store.reset(list);
    const LivePrinter printer(list, &store);
    Capture output;

    for (const char *text : {"a", "b", "b", "a"})
        store.setValue(&title, QString::fromLatin1(text), PropertyStore::NewChange);

    QCOMPARE(output.text(),
             QByteArray("{\"continued\":false,\"name\":\"title\",\"value\":\"b\"}\n"
                        "{\"continued\":false,\"name\":\"title\",\"value\":\"a\"}\n"));
}

void tst_LivePrinter::actionIsPrintedEachTimeAsNull()
{
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Property property(QStringLiteral("go"), QStringLiteral("Go"), kPropertyTypeAction);
    Capture output;

    for (int i = 0; i < 2; ++i)
        store.setValue(&property, QVariant(), PropertyStore::NewChange);

    QCOMPARE(output.text(), QByteArray("{\"continued\":false,\"name\":\"go\",\"value\":null}\n"
                                       "{\"continued\":false,\"name\":\"go\",\"value\":null}\n"));
}

void tst_LivePrinter::absentValueIsNotPrinted()
{
    // As the texture editor sends it while the user has picked nothing.
    Property texture(QStringLiteral("t"), QString(), kPropertyTypeTexture);
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Capture capture;

    store.setValue(&texture, QVariant(), IPropertyEditorDelegate::NewChange);

    QCOMPARE(capture.text(), QByteArray());
}

void tst_LivePrinter::picturesAndTexturesArePrintedAsText()
{
    Property texture(QStringLiteral("t"), QString(), kPropertyTypeTexture);
    Property image(QStringLiteral("i"), QString(), kPropertyTypeImage);
    Property format(QStringLiteral("f"), QString(), kPropertyTypeImageFormat);
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Capture capture;

    store.setValue(&texture,
                   QVariant::fromValue(TextureChoice{QStringLiteral("Wood"), QImage(), QIcon()}),
                   IPropertyEditorDelegate::NewChange);
    store.setValue(&image, QVariant(), IPropertyEditorDelegate::NewChange);
    store.setValue(&format, QVariant::fromValue(ImageFormatDesc{QStringLiteral("jpeg"), 7}),
                   IPropertyEditorDelegate::ContinuedChange);

    QCOMPARE(
        capture.text(),
        QByteArray(R"({"continued":false,"name":"t","value":"Wood"})"
                   "\n"
                   R"({"continued":false,"name":"i","value":""})"
                   "\n"
                   R"({"continued":true,"name":"f","value":{"compressionRate":7,"format":"jpeg"}})"
                   "\n"));
}

void tst_LivePrinter::lineBreaksAreEscaped()
{
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Capture output;

    store.setValue(&m_title, QStringLiteral("two\nlines"), PropertyStore::NewChange);

    const QByteArray text = output.text();
    QCOMPARE(text.count('\n'), 1);
    QCOMPARE(QJsonDocument::fromJson(text).object().value(QStringLiteral("value")),
             QJsonValue(QStringLiteral("two\nlines")));
}

void tst_LivePrinter::foldingAndTurningPagesAreNoChanges_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("folding a group") << kPropertyTypeBeginGroup << QVariant(false);
    QTest::newRow("turning to a page") << kPropertyTypeBeginTabGroup << QVariant(1);
}

void tst_LivePrinter::foldingAndTurningPagesAreNoChanges()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    PropertyStore store;
    const LivePrinter printer({}, &store);
    Property property(QStringLiteral("marker"), QStringLiteral("Marker"), type);
    Capture output;

    store.setValue(&property, value, PropertyStore::NewChange);

    QCOMPARE(output.text(), QByteArray());
}

void tst_LivePrinter::runIsOneLineAtItsEnd()
{
    PropertyStore store;
    PropertyEditorPanel panel({&m_gain}, &store, nullptr);
    LivePrinter printer({}, &store);
    printer.follow(&panel, CommitMode::atEndOfRun());
    auto *const editor = panel.findChild<PropertyEditor *>();
    Capture output;

    Q_EMIT editor->startInteractiveChange();
    store.setValue(&m_gain, 0.5, PropertyStore::NewChange);
    store.setValue(&m_gain, 0.75, PropertyStore::ContinuedChange);
    QVERIFY(output.size() == 0);
    Q_EMIT editor->endInteractiveChange();

    QCOMPARE(output.text(), QByteArray("{\"continued\":false,\"name\":\"gain\",\"value\":0.75}\n"));
}

void tst_LivePrinter::limitedRunPrintsItsFirstAndLastChange()
{
    PropertyStore store;
    PropertyEditorPanel panel({&m_gain}, &store, nullptr);
    LivePrinter printer({}, &store);
    printer.follow(&panel, CommitMode::atMost(20));
    Capture output;

    store.setValue(&m_gain, 0.25, PropertyStore::NewChange);
    store.setValue(&m_gain, 0.5, PropertyStore::ContinuedChange);
    store.setValue(&m_gain, 0.75, PropertyStore::ContinuedChange);
    const qint64 first = output.size();

    QVERIFY(first > 0);
    QTRY_VERIFY(output.size() > first);
    QCOMPARE(output.text(), QByteArray("{\"continued\":false,\"name\":\"gain\",\"value\":0.25}\n"
                                       "{\"continued\":true,\"name\":\"gain\",\"value\":0.75}\n"));
}

void tst_LivePrinter::actionIsPrintedEachTimeInEveryMode()
{
    Property action(QStringLiteral("go"), QStringLiteral("Go"), kPropertyTypeAction);
    PropertyStore store;
    PropertyEditorPanel panel({&action}, &store, nullptr);
    for (const CommitMode mode : {CommitMode::atMost(1), CommitMode::atEndOfRun()}) {
        LivePrinter printer({}, &store);
        printer.follow(&panel, mode);
        Capture output;

        for (int i = 0; i < 3; ++i)
            store.setValue(&action, QVariant(), PropertyStore::NewChange);

        QCOMPARE(output.text().count('\n'), 3);
    }
}

void tst_LivePrinter::whatWaitsIsPrintedAtLast()
{
    PropertyStore store;
    PropertyEditorPanel panel({&m_gain}, &store, nullptr);
    auto printer = std::make_unique<LivePrinter>(PropertyList(), &store);
    printer->follow(&panel, CommitMode::atMost(1));
    Capture output;

    store.setValue(&m_gain, 0.25, PropertyStore::NewChange);
    store.setValue(&m_gain, 0.5, PropertyStore::ContinuedChange);
    const qint64 first = output.size();
    printer->flush();
    QVERIFY(output.size() > first);
    store.setValue(&m_gain, 0.75, PropertyStore::ContinuedChange);
    printer.reset();

    QCOMPARE(output.text().count('\n'), 3);
}

QTEST_MAIN(tst_LivePrinter)
#include "tst_LivePrinter.moc"
