#include "support/EveryTypePanel.h"

#include <testing/EditRecorder.h>
#include <testing/PanelDriver.h>

#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyTest::EditRecorder;
using Tessark::PropertyTest::PanelDriver;
using TestSupport::RecordingDelegate;

class tst_DriverScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void playsEveryKindOfLine();
    void stopsAtTheFirstLineThatFails();
    void readsRowsThatAreCalledLikeWords();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void tellsWhatWasFound_data();
    void tellsWhatWasFound();
    void needsARecorderForEdits();
    void survivesAPanelThatIsDeleted();

private:
    Property &add(const char *name, const QString &type, const QVariant &value = QVariant());

    TestSupport::PropertySet m_set;
    RecordingDelegate m_store;
    std::unique_ptr<EditRecorder> m_recorder;
    std::unique_ptr<PropertyEditorPanel> m_panel;
    std::unique_ptr<PanelDriver> m_driver;
};

Property &tst_DriverScript::add(const char *name, const QString &type, const QVariant &value)
{
    const QString text = QString::fromLatin1(name);
    m_store.values[text] = value;
    return m_set.add(text, text, type);
}

void tst_DriverScript::init()
{
    m_set = TestSupport::PropertySet();
    m_store = RecordingDelegate();
    add("gain", kPropertyTypeFloat, 0.2).setRange(0, 1).setDefaultValue(0.5);
    add("title", kPropertyTypeString, QStringLiteral("Dawn"));
    add("notes", kPropertyTypeText);
    add("limited", kPropertyTypeBoolean, false);
    add("mode", kPropertyTypeEnumeration, 0)
        .setHint(kPropertyHintDisplayValues,
                 QStringList{QStringLiteral("Fast"), QStringLiteral("Very good")});
    add("run it", kPropertyTypeAction);
    add("flags", kPropertyTypeInteger, 1).setRange(0, 9);
    add("Levels", kPropertyTypeBeginGroup);
    add("size", kPropertyTypeSize, QSize(2, 4)).setHint(kPropertyHintAspectRatio, QSize(0, 0));
    add("end", kPropertyTypeEndGroup);
    add("views", kPropertyTypeBeginTabGroup);
    add("Shape", kPropertyTypeTab);
    add("offset", kPropertyTypeVec2, QVector2D(1, 2)).setRange(QVector2D(-9, -9), QVector2D(9, 9));
    add("Look", kPropertyTypeTab);
    add("tint", kPropertyTypeColor, QColor(Qt::red));
    add("end", kPropertyTypeEndTabGroup);

    m_recorder = std::make_unique<EditRecorder>(&m_store);
    m_panel = std::make_unique<PropertyEditorPanel>(m_set.list(), m_recorder.get(), nullptr);
    m_panel->updateUI();
    m_panel->resize(500, m_panel->sizeHint().height());
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.get()));
    m_recorder->clear();
    m_driver = std::make_unique<PanelDriver>(m_panel.get());
    m_driver->setRecorder(m_recorder.get());
}

void tst_DriverScript::cleanup()
{
    m_driver.reset();
    m_panel.reset();
    m_recorder.reset();
}

void tst_DriverScript::playsEveryKindOfLine()
{
    const QString script = QStringLiteral(R"(
        # A drag is one run.
        drag gain to 1
        expect gain = 1
        expect flags 0,1,1
        forget edits
        drag gain near 0.333
        forget edits

        type "A \"new\" day" in title
        expect title = "A \"new\" day"
        expect text of title = "A \"new\" day"
        type Du in title without return
        expect edits of title = "A \"new\" day"
        type "one\ntwo" in notes
        expect notes = "one\ntwo"

        type 0.25 in gain
        step gain by -2
        expect gain = 0.23
        wheel gain by 1
        set gain to default
        expect gain = 0.5

        check limited # and not before
        expect limited = true
        uncheck limited
        choose "Very good" in mode
        expect mode = 1
        expect text of mode = Very good
        forget edits
        press "run it"
        expect edits of "run it" = nothing
        expect flags 0
        expect flags = 1

        close Levels
        expect Levels closed
        expect size hidden
        open "Levels"
        expect Levels open
        type 3 in size.height
        expect size = 2 3
        expect size.width enabled

        show tab Look
        expect tint = #ff0000
        expect offset hidden
        expect tint visible
        type 7 in offset.y
        expect offset = 1 7
        expect edits of views = 1, 0
    )");
    QVERIFY2(m_driver->run(script), qPrintable(m_driver->error()));
    QCOMPARE(m_driver->error(), QString());
}

void tst_DriverScript::stopsAtTheFirstLineThatFails()
{
    QVERIFY(!m_driver->run(QStringLiteral("check limited\n\nchek limited\nuncheck limited")));
    QVERIFY2(m_driver->error().startsWith(QStringLiteral(
                 "line 3: word 1: expected another word, found \"chek\" (did you mean \"check\"? "
                 "there are check, choose, ")),
             qPrintable(m_driver->error()));
    QCOMPARE(m_recorder->edits().size(), 1);
}

void tst_DriverScript::readsRowsThatAreCalledLikeWords()
{
    QVERIFY2(m_driver->perform(QStringLiteral("expect flags = 1")), qPrintable(m_driver->error()));
    QVERIFY2(m_driver->perform(QStringLiteral("expect flags visible")),
             qPrintable(m_driver->error()));
    QVERIFY2(m_driver->perform(QStringLiteral("expect flags")), qPrintable(m_driver->error()));
    QVERIFY2(m_driver->perform(QStringLiteral("expect \"flags\" = 1")),
             qPrintable(m_driver->error()));
    QVERIFY2(m_driver->perform(QStringLiteral("  ")), qPrintable(m_driver->error()));
}

void tst_DriverScript::tellsWhatIsWrong_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("no row") << "drag"
                            << "word 2: expected the name of a row, found the end of the line";
    QTest::newRow("wrong word")
        << "drag gain at 1"
        << "word 3: expected another word, found \"at\" (there are to, near)";
    QTest::newRow("one word") << "step gain to 1"
                              << "word 3: expected \"by\", found \"to\"";
    QTest::newRow("no number") << "drag gain to high"
                               << "word 4: expected a number, found \"high\"";
    QTest::newRow("no whole number") << "step gain by 1.5"
                                     << "word 4: expected a whole number, found \"1.5\"";
    QTest::newRow("too much") << "check limited now"
                              << "word 3: expected the end of the line, found \"now\"";
    QTest::newRow("open quote") << "press \"run"
                                << "a quote is not closed";
    QTest::newRow("quoted verb") << "\"check\" limited"
                                 << "word 1: expected another word, found \"check\"";
    QTest::newRow("unknown row")
        << "type 3 in siez.height"
        << "type in \"siez.height\": There is no such row (did you mean \"size\"? there are gain, ";
    QTest::newRow("near row") << "check limted"
                              << "(did you mean \"limited\"? there are gain, title";
    QTest::newRow("unknown part") << "type 3 in size.heigt"
                                  << "did you mean \"height\"?";
    QTest::newRow("unknown choice") << "choose Slow in mode"
                                    << "There is no choice \"Slow\" (there are Fast, Very good)";
    QTest::newRow("unknown state") << "expect gain big"
                                   << "found \"big\" (there are =, visible, ";
    QTest::newRow("no flags") << "expect flags 0,x"
                              << "expected flags, 0 or 1, found \"x\"";
    QTest::newRow("no edits of") << "expect edits gain"
                                 << "word 3: expected \"of\", found \"gain\"";
    QTest::newRow("no value") << "expect gain ="
                              << "word 4: expected a value, found the end";
    QTest::newRow("unknown group") << "open Level"
                                   << "did you mean \"Levels\"?";
}

void tst_DriverScript::tellsWhatIsWrong()
{
    QFETCH(QString, line);
    QFETCH(QString, error);

    QVERIFY(!m_driver->perform(line));

    QVERIFY2(m_driver->error().contains(error), qPrintable(m_driver->error()));
    QVERIFY(m_recorder->edits().isEmpty());
}

void tst_DriverScript::tellsWhatWasFound_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("value") << "expect gain = 0.3"
                           << "expected gain = 0.3, found 0.2";
    QTest::newRow("size") << "expect size = 2 5"
                          << "expected size = 2 5, found 2 4";
    QTest::newRow("colour") << "expect tint = blue"
                            << "expected tint = blue, found #ff0000";
    QTest::newRow("bool") << "expect limited = yes"
                          << "expected limited = yes, found false";
    QTest::newRow("text") << "expect text of title = x"
                          << "expected the text \"x\" in \"title\", found \"Dawn\"";
    QTest::newRow("state") << "expect gain disabled"
                           << "expected \"gain\" disabled, which it is not";
    QTest::newRow("group") << "expect Levels closed"
                           << "expected \"Levels\" closed";
    QTest::newRow("flags") << "expect flags 0,1"
                           << "expected flags 0,1; the edits are: none";
    QTest::newRow("edits") << "expect edits of gain = 1, 2"
                           << "expected gain = 1, 2; the edits are: none";
}

void tst_DriverScript::tellsWhatWasFound()
{
    QFETCH(QString, line);
    QFETCH(QString, error);
    QVERIFY(!m_driver->perform(line));
    QVERIFY2(m_driver->error().contains(error), qPrintable(m_driver->error()));
}

void tst_DriverScript::needsARecorderForEdits()
{
    m_driver->setRecorder(nullptr);
    QVERIFY(!m_driver->perform(QStringLiteral("expect flags 0")));
    QCOMPARE(m_driver->error(), QStringLiteral("no recorder was given to the driver"));
    QVERIFY(!m_driver->perform(QStringLiteral("expect edits of gain = 1")));
    QCOMPARE(m_driver->error(), QStringLiteral("no recorder was given to the driver"));
    QVERIFY(!m_driver->perform(QStringLiteral("forget edits")));
}

void tst_DriverScript::survivesAPanelThatIsDeleted()
{
    m_store.onSetValue = [this] { m_panel.reset(); };
    QVERIFY(!m_driver->run(QStringLiteral("check limited\nexpect limited = true")));
    QCOMPARE(m_driver->error(),
             QStringLiteral("line 1: check \"limited\": The window was deleted meanwhile"));
    QVERIFY(!m_driver->perform(QStringLiteral("expect limited = true")));
}

QTEST_MAIN(tst_DriverScript)
#include "tst_DriverScript.moc"
