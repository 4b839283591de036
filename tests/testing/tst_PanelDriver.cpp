#include "support/EveryTypePanel.h"

#include <property/editors/TexturePropertyEditor.h>
#include <testing/EditRecorder.h>
#include <testing/PanelDriver.h>

#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyTest::EditRecorder;
using Tessark::PropertyTest::PanelDriver;
using TestSupport::EveryTypePanel;

using Action = std::function<bool(PanelDriver &)>;

Q_DECLARE_METATYPE(Action)

class tst_PanelDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void namesRowsAndParts();
    void dragsToTheNearestPixel_data();
    void dragsToTheNearestPixel();
    void dragsToANumberThatAPixelMeans_data() { dragsToTheNearestPixel_data(); }
    void dragsToANumberThatAPixelMeans();
    void dragsFromRightToLeft();
    void dragIsOneRunWithAnEditForEachStep();
    void dragToWhereTheHandleIsMakesNoEdit();
    void dragFailsWhereNoPixelMeansTheNumber();
    void dragFailsOutsideOfTheRange();
    void typesIntoFields_data();
    void typesIntoFields();
    void typesLinesWithoutReturnAtTheEnd();
    void typesAnEmptyText();
    void typingWithoutReturnDoesNotFinish();
    void typesIntoAWindowThatIsNotActive();
    void stepsByArrowKeys_data();
    void stepsByArrowKeys();
    void wheelTurnsSlidersAndLeavesFields();
    void choosesByText_data();
    void choosesByText();
    void choosesInALongList();
    void checksBoxes_data();
    void checksBoxes();
    void checkingWhatIsCheckedDoesNothing();
    void pressesActions();
    void opensAndClosesGroups();
    void showsTabs();
    void revealsRowsByClicks();
    void doesNotRevealWhenToldNotTo();
    void leavesOpenWhatIsOpen();
    void scrollsToRows();
    void setsToDefaultByTheMenu();
    void saysWhatTheMenuOffersInstead();
    void tellsTexts_data();
    void tellsTexts();
    void tellsValuesOfParts();
    void tellsWhetherRowsCanBeSeenAndUsed();
    void saysWhichRowsThereAre();
    void failsWhereAUserCannotAct();
    void failsBehindADialog();
    void failsWithoutAWindow();
    void findsAPanelThatIsBuiltAnew();
    void survivesWhatIsDeletedMeanwhile_data();
    void survivesWhatIsDeletedMeanwhile();

private:
    QVariant lastValue() const { return m_rows->delegate().changes.last().value; }

    std::unique_ptr<EveryTypePanel> m_rows;
    std::unique_ptr<PanelDriver> m_driver;
};

#define VERIFY_DONE(action) QVERIFY2((action), qPrintable(m_driver->error()))
#define VERIFY_FAILED(action, text)                                                                \
    QVERIFY(!(action));                                                                            \
    QVERIFY2(m_driver->error().contains(QLatin1String(text)), qPrintable(m_driver->error()))

void tst_PanelDriver::init()
{
    m_rows = std::make_unique<EveryTypePanel>();
    TextureChoice oak;
    oak.name = QStringLiteral("Oak");
    TextureChoice slate;
    slate.name = QStringLiteral("Slate");
    qobject_cast<TexturePropertyEditor *>(m_rows->editor(QStringLiteral("floor")))
        ->setTextures({oak, slate});
    m_rows->window()->resize(500, m_rows->window()->sizeHint().height());
    m_rows->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_rows->window()));
    m_rows->delegate().changes.clear();
    m_driver = std::make_unique<PanelDriver>(m_rows->window());
}

void tst_PanelDriver::cleanup()
{
    m_driver.reset();
    m_rows.reset();
}

void tst_PanelDriver::namesRowsAndParts()
{
    const QStringList rows = m_driver->rows();
    for (const char *name : {"gain", "title", "position.z", "scale.expanded", "crop.w", "tint.blue",
                             "badge.width", "badge.constrain", "folder.browse", "format.quality",
                             "placement.rotation", "folded.scaleY", "camera", "run"})
        QVERIFY2(rows.contains(QLatin1String(name)), name);
    QVERIFY(!rows.contains(QStringLiteral("cameraEnd")));
}

void tst_PanelDriver::dragsToTheNearestPixel_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<double>("number");
    QTest::addColumn<double>("tolerance");

    QTest::newRow("float") << "gain" << 7.0 << 0.1;
    QTest::newRow("logarithmic float") << "rate" << 20.0 << 2.0;
    QTest::newRow("integer") << "frames" << 100.0 << 1.0;
    QTest::newRow("percent") << "volume" << 0.25 << 0.01;
    QTest::newRow("component of a vector") << "position.y" << -3.0 << 0.1;
    QTest::newRow("first component of a vector") << "scale.x" << 4.0 << 0.1;
    QTest::newRow("channel of a colour") << "tint.red" << 0.75 << 0.01;
    QTest::newRow("quality") << "format.quality" << 20.0 << 1.0;
    QTest::newRow("offset") << "placement.y" << -0.5 << 0.02;
    QTest::newRow("rotation") << "placement.rotation" << 90.0 << 2.0;
    QTest::newRow("scale") << "placement.scaleY" << 2.0 << 0.05;
}

void tst_PanelDriver::dragsToTheNearestPixel()
{
    QFETCH(QString, row);
    QFETCH(double, number);
    QFETCH(double, tolerance);

    VERIFY_DONE(m_driver->dragNear(row, number));

    const double reached = m_driver->value(row).toDouble();
    QVERIFY2(qAbs(reached - number) <= tolerance, qPrintable(QString::number(reached)));
    QCOMPARE(m_rows->delegate().changes.last().name, row.section(QLatin1Char('.'), 0, 0));
}

void tst_PanelDriver::dragsToANumberThatAPixelMeans()
{
    QFETCH(QString, row);
    QFETCH(double, number);
    VERIFY_DONE(m_driver->dragNear(row, number));
    const double reached = m_driver->value(row).toDouble();
    VERIFY_DONE(m_driver->dragNear(row, number * 0.5));
    QVERIFY(m_driver->value(row).toDouble() != reached);

    VERIFY_DONE(m_driver->drag(row, reached));

    QVERIFY(qAbs(m_driver->value(row).toDouble() - reached) <= 1e-6 * qMax(1.0, qAbs(reached)));
}

void tst_PanelDriver::dragsFromRightToLeft()
{
    m_rows->window()->setLayoutDirection(Qt::RightToLeft);

    VERIFY_DONE(m_driver->dragNear(QStringLiteral("gain"), 9));
    VERIFY_DONE(m_driver->dragNear(QStringLiteral("tint.red"), 0.9));

    QVERIFY(qAbs(m_driver->value(QStringLiteral("gain")).toDouble() - 9) < 0.1);
    QVERIFY(qAbs(m_driver->value(QStringLiteral("tint.red")).toDouble() - 0.9) < 0.02);
}

void tst_PanelDriver::dragIsOneRunWithAnEditForEachStep()
{
    VERIFY_DONE(m_driver->dragNear(QStringLiteral("gain"), 7));
    QCOMPARE(m_rows->delegate().flags(), (QVector<int>{0, 1, 1}));

    m_driver->setDragSteps(5);
    VERIFY_DONE(m_driver->dragNear(QStringLiteral("gain"), 1));
    QCOMPARE(m_rows->delegate().flags(), (QVector<int>{0, 1, 1, 0, 1, 1, 1, 1}));
}

void tst_PanelDriver::dragToWhereTheHandleIsMakesNoEdit()
{
    VERIFY_DONE(m_driver->drag(QStringLiteral("gain"), 2.5));
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_PanelDriver::dragFailsWhereNoPixelMeansTheNumber()
{
    VERIFY_FAILED(m_driver->drag(QStringLiteral("gain"), 3.1415926),
                  "drag \"gain\": No pixel of its slider means 3.1415926; the nearest is 3.1");
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_PanelDriver::dragFailsOutsideOfTheRange()
{
    VERIFY_FAILED(m_driver->drag(QStringLiteral("gain"), 11), "Its slider goes from 0 to 10");
    VERIFY_FAILED(m_driver->dragNear(QStringLiteral("gain"), qQNaN()), "from 0 to 10");
    VERIFY_FAILED(m_driver->drag(QStringLiteral("title"), 1), "It has no slider");
    VERIFY_FAILED(m_driver->drag(QStringLiteral("position"), 1), "there are x, y, z");
}

void tst_PanelDriver::typesIntoFields_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value"); // of the part

    QTest::newRow("float") << "gain"
                           << "7.5" << QVariant(7.5);
    QTest::newRow("integer") << "frames"
                             << "30" << QVariant(30);
    QTest::newRow("percent") << "volume"
                             << "40" << QVariant(0.4);
    QTest::newRow("string") << "title"
                            << "Dusk" << QVariant(QStringLiteral("Dusk"));
    QTest::newRow("beyond Latin") << "title" << QString::fromUtf8("Δ ж 日")
                                  << QVariant(QString::fromUtf8("Δ ж 日"));
    QTest::newRow("filename") << "folder"
                              << "/usr" << QVariant(QStringLiteral("/usr"));
    QTest::newRow("vector") << "position.z"
                            << "-4" << QVariant(-4.0);
    QTest::newRow("fourth component") << "crop.w"
                                      << "2" << QVariant(2.0);
    QTest::newRow("channel of a colour") << "tint.green"
                                         << "0.5" << QVariant(0.5);
    QTest::newRow("size") << "badge.height"
                          << "3" << QVariant(3);
    QTest::newRow("quality") << "format.quality"
                             << "7" << QVariant(7);
    QTest::newRow("rotation") << "placement.rotation"
                              << "90" << QVariant(90.0);
}

void tst_PanelDriver::typesIntoFields()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QFETCH(QVariant, value);

    VERIFY_DONE(m_driver->type(row, text));

    const QVariant found = m_driver->value(row);
    if (value.userType() == QMetaType::Double)
        QVERIFY2(qAbs(found.toDouble() - value.toDouble()) < 2e-5, qPrintable(found.toString()));
    else
        QCOMPARE(found.toString(), value.toString());
    QVERIFY(!m_rows->delegate().changes.isEmpty());
    QCOMPARE(m_rows->delegate().changes.first().flags, 0);
}

void tst_PanelDriver::typesLinesWithoutReturnAtTheEnd()
{
    VERIFY_DONE(m_driver->type(QStringLiteral("notes"), QStringLiteral("one\ntwo")));
    QCOMPARE(m_driver->text(QStringLiteral("notes")), QStringLiteral("one\ntwo"));
}

void tst_PanelDriver::typesAnEmptyText()
{
    VERIFY_DONE(m_driver->type(QStringLiteral("title"), QString()));
    QCOMPARE(lastValue(), QVariant(QString()));
    QCOMPARE(m_driver->text(QStringLiteral("title")), QString());
}

void tst_PanelDriver::typingWithoutReturnDoesNotFinish()
{
    VERIFY_DONE(
        m_driver->type(QStringLiteral("title"), QStringLiteral("Du"), PanelDriver::WithoutReturn));
    QCOMPARE(m_driver->text(QStringLiteral("title")), QStringLiteral("Du"));
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_PanelDriver::typesIntoAWindowThatIsNotActive()
{
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    VERIFY_DONE(m_driver->type(QStringLiteral("gain"), QStringLiteral("4")));

    QCOMPARE(lastValue(), QVariant(4.0));
    QVERIFY(m_rows->window()->isActiveWindow());
}

void tst_PanelDriver::stepsByArrowKeys_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("steps");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("float up") << "gain" << 2 << QVariant(2.7);
    QTest::newRow("float down") << "gain" << -1 << QVariant(2.4);
    QTest::newRow("integer") << "frames" << 3 << QVariant(28);
    QTest::newRow("size") << "badge.width" << 1 << QVariant(97);
    QTest::newRow("next choice") << "quality" << 1 << QVariant(1);
    QTest::newRow("choice before") << "mode" << -1 << QVariant(0);
    QTest::newRow("next in a list") << "floor" << 1 << QVariant();
}

void tst_PanelDriver::stepsByArrowKeys()
{
    QFETCH(QString, row);
    QFETCH(int, steps);
    QFETCH(QVariant, value);
    const bool hasNoArrows =
        row == QLatin1String("frames"); // its steps are a hundredth of the range

    VERIFY_DONE(m_driver->step(row, steps));

    if (row == QLatin1String("floor"))
        QVERIFY(!m_driver->text(row).isEmpty());
    else if (hasNoArrows)
        QCOMPARE(m_driver->value(row).toInt(), 25 + steps * (119 / 100));
    else
        QCOMPARE(m_driver->value(row).toString(), value.toString());
}

void tst_PanelDriver::wheelTurnsSlidersAndLeavesFields()
{
    VERIFY_DONE(m_driver->wheel(QStringLiteral("gain"), 1));
    QVERIFY(m_driver->value(QStringLiteral("gain")).toDouble() > 2.5);
    VERIFY_DONE(m_driver->wheel(QStringLiteral("gain"), -2));
    QVERIFY(m_driver->value(QStringLiteral("gain")).toDouble() < 2.5);
    QCOMPARE(m_rows->delegate().changes.size(), 3);

    VERIFY_DONE(m_driver->wheel(QStringLiteral("badge.width"), 1));
    QCOMPARE(m_rows->delegate().changes.size(), 3);
}

void tst_PanelDriver::choosesByText_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("other");

    QTest::newRow("combo box") << "mode"
                               << "Fast"
                               << "Good";
    QTest::newRow("radio buttons") << "quality"
                                   << "Good"
                                   << "Fast";
    QTest::newRow("preset") << "frame"
                            << "Half Resolution"
                            << "Custom...";
    QTest::newRow("format") << "format"
                            << "png"
                            << "tiff";
    QTest::newRow("list") << "floor"
                          << "Slate"
                          << "Oak";
}

void tst_PanelDriver::choosesByText()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QFETCH(QString, other);

    VERIFY_DONE(m_driver->choose(row, text));
    QCOMPARE(m_driver->text(row), text);
    QCOMPARE(m_rows->delegate().changes.last().name, row);
    VERIFY_DONE(m_driver->choose(row, other));
    QCOMPARE(m_driver->text(row), other);

    VERIFY_FAILED(m_driver->choose(row, text + QLatin1Char('x')), "did you mean");
    VERIFY_FAILED(m_driver->choose(QStringLiteral("title"), text), "It offers no choices");
}

void tst_PanelDriver::choosesInALongList()
{
    QStringList texts;
    for (int i = 0; i < 200; ++i)
        texts.append(QStringLiteral("Choice %1").arg(i));
    auto *const box = m_rows->control<QComboBox>(QStringLiteral("mode"));
    box->addItems(texts);

    VERIFY_DONE(m_driver->choose(QStringLiteral("mode"), QStringLiteral("Choice 150")));

    QCOMPARE(lastValue(), QVariant(152));
}

void tst_PanelDriver::checksBoxes_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<bool>("checked");

    QTest::newRow("box with a text") << "active" << false;
    QTest::newRow("box without a text") << "muted" << true;
    QTest::newRow("aspect") << "badge.constrain" << false;
    QTest::newRow("button that unfolds a vector") << "stretch.expanded" << true;
    QTest::newRow("button that unfolds a transform") << "folded.expanded" << true;
}

void tst_PanelDriver::checksBoxes()
{
    QFETCH(QString, row);
    QFETCH(bool, checked);
    QCOMPARE(m_driver->value(row), QVariant(!checked));

    VERIFY_DONE(m_driver->check(row, checked));

    QCOMPARE(m_driver->value(row), QVariant(checked));
}

void tst_PanelDriver::checkingWhatIsCheckedDoesNothing()
{
    VERIFY_DONE(m_driver->check(QStringLiteral("active"), true));
    QVERIFY(m_rows->delegate().changes.isEmpty());
    VERIFY_FAILED(m_driver->check(QStringLiteral("run"), true), "It has no box");
}

void tst_PanelDriver::pressesActions()
{
    VERIFY_DONE(m_driver->press(QStringLiteral("run")));
    QCOMPARE(m_rows->delegate().log(), QStringList(QStringLiteral("run=/0")));
    VERIFY_FAILED(m_driver->press(QStringLiteral("title")), "It has no button");
}

void tst_PanelDriver::opensAndClosesGroups()
{
    VERIFY_DONE(m_driver->close(QStringLiteral("Camera")));
    QVERIFY(!m_driver->isOpen(QStringLiteral("Camera")));
    QVERIFY(!m_driver->isVisible(QStringLiteral("gain")));

    VERIFY_DONE(m_driver->open(QStringLiteral("camera")));
    QVERIFY(m_driver->isOpen(QStringLiteral("camera")));
    QVERIFY(m_driver->isVisible(QStringLiteral("gain")));
    QCOMPARE(m_rows->delegate().log(),
             (QStringList{QStringLiteral("camera=false/0"), QStringLiteral("camera=true/0")}));

    VERIFY_DONE(m_driver->open(QStringLiteral("camera")));
    QCOMPARE(m_rows->delegate().changes.size(), 2);
    VERIFY_FAILED(
        m_driver->open(QStringLiteral("Camerra")),
        "There is no such group (did you mean \"Camera\"? there are Camera, Lens, Shade)");
}

void tst_PanelDriver::showsTabs()
{
    VERIFY_DONE(m_driver->showTab(QStringLiteral("Colors")));
    QVERIFY(m_driver->isVisible(QStringLiteral("tint")));
    VERIFY_DONE(m_driver->showTab(QStringLiteral("vectors")));
    QVERIFY(!m_driver->isVisible(QStringLiteral("tint")));
    VERIFY_FAILED(m_driver->showTab(QStringLiteral("Colours")), "did you mean \"Colors\"");
}

void tst_PanelDriver::revealsRowsByClicks()
{
    VERIFY_DONE(m_driver->close(QStringLiteral("Lens")));
    VERIFY_DONE(m_driver->close(QStringLiteral("Camera")));
    m_rows->delegate().changes.clear();

    VERIFY_DONE(m_driver->step(QStringLiteral("frames"), 1));
    QCOMPARE(m_rows->delegate().log().mid(0, 1), QStringList(QStringLiteral("camera=true/0")));

    m_rows->delegate().changes.clear();
    VERIFY_DONE(m_driver->type(QStringLiteral("tint.red"), QStringLiteral("1")));
    QCOMPARE(m_rows->delegate().log().first(), QStringLiteral("views=1/0"));
}

void tst_PanelDriver::doesNotRevealWhenToldNotTo()
{
    m_driver->setRevealing(false);
    VERIFY_DONE(m_driver->close(QStringLiteral("Camera")));

    VERIFY_FAILED(m_driver->type(QStringLiteral("gain"), QStringLiteral("1")), "It is hidden");
    VERIFY_FAILED(m_driver->type(QStringLiteral("tint.red"), QStringLiteral("1")), "It is hidden");

    QCOMPARE(m_rows->delegate().changes.size(), 1);
}

void tst_PanelDriver::leavesOpenWhatIsOpen()
{
    VERIFY_DONE(m_driver->type(QStringLiteral("gain"), QStringLiteral("1")));
    for (const auto &change : m_rows->delegate().changes)
        QCOMPARE(change.name, QStringLiteral("gain"));
}

void tst_PanelDriver::scrollsToRows()
{
    QScrollArea area;
    area.setWidgetResizable(true);
    area.setWidget(m_rows->panel());
    area.resize(400, 150);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    PanelDriver driver(&area);

    QVERIFY2(driver.type(QStringLiteral("badge.height"), QStringLiteral("9")),
             qPrintable(driver.error()));
    QVERIFY2(driver.type(QStringLiteral("gain"), QStringLiteral("9")), qPrintable(driver.error()));
    QVERIFY2(driver.choose(QStringLiteral("mode"), QStringLiteral("Fast")),
             qPrintable(driver.error()));

    QCOMPARE(driver.value(QStringLiteral("badge.height")), QVariant(9));
    QCOMPARE(driver.value(QStringLiteral("gain")), QVariant(9.0));
}

void tst_PanelDriver::setsToDefaultByTheMenu()
{
    m_rows->property(QStringLiteral("gain"))->setDefaultValue(4.0);
    m_rows->property(QStringLiteral("active"))->setDefaultValue(false);

    VERIFY_DONE(m_driver->setToDefault(QStringLiteral("gain")));
    VERIFY_DONE(m_driver->setToDefault(QStringLiteral("active")));

    QCOMPARE(m_rows->delegate().log(),
             (QStringList{QStringLiteral("gain=4/0"), QStringLiteral("active=false/0")}));
}

void tst_PanelDriver::saysWhatTheMenuOffersInstead()
{
    m_rows->property(QStringLiteral("title"))->setDefaultValue(QStringLiteral("Dawn"));

    VERIFY_FAILED(m_driver->setToDefault(QStringLiteral("title")),
                  "A right click offers no \"Set to Default\"");
    VERIFY_FAILED(m_driver->setToDefault(QStringLiteral("run")), "A right click opens no menu");
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_PanelDriver::tellsTexts_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("text");

    QTest::newRow("float with a unit") << "gain"
                                       << "2.5 dB";
    QTest::newRow("integer") << "frames"
                             << "25";
    QTest::newRow("percent") << "volume"
                             << "85.00 %";
    QTest::newRow("string") << "title"
                            << "Dawn";
    QTest::newRow("text") << "notes"
                          << "one take";
    QTest::newRow("static text") << "status"
                                 << "ready";
    QTest::newRow("action") << "run"
                            << "Run";
    QTest::newRow("box") << "active"
                         << "Active";
    QTest::newRow("combo box") << "mode"
                               << "Good";
    QTest::newRow("radio buttons") << "quality"
                                   << "Fast";
    QTest::newRow("component") << "position.y"
                               << "2";
    QTest::newRow("size") << "badge.width"
                          << "96";
    QTest::newRow("preset") << "frame"
                            << "Full Resolution";
    QTest::newRow("format") << "format"
                            << "jpeg";
    QTest::newRow("group") << "camera"
                           << "Camera";
}

void tst_PanelDriver::tellsTexts()
{
    QFETCH(QString, row);
    QFETCH(QString, text);
    QCOMPARE(m_driver->text(row), text);
    QCOMPARE(m_driver->error(), QString());
}

void tst_PanelDriver::tellsValuesOfParts()
{
    QCOMPARE(m_driver->value(QStringLiteral("gain")), QVariant(2.5));
    QCOMPARE(m_driver->value(QStringLiteral("badge")), QVariant(QSize(96, 64)));
    QCOMPARE(m_driver->value(QStringLiteral("badge.height")), QVariant(64));
    QCOMPARE(m_driver->value(QStringLiteral("tint.alpha")), QVariant(1.0));
    QCOMPARE(m_driver->value(QStringLiteral("crop.z")), QVariant(3.0));
    QCOMPARE(m_driver->value(QStringLiteral("placement.scaleX")), QVariant(1.0));
    VERIFY_FAILED(m_driver->type(QStringLiteral("tint.alpha"), QStringLiteral("1")),
                  "It has no field of that name (there are red, green, blue)");
}

void tst_PanelDriver::tellsWhetherRowsCanBeSeenAndUsed()
{
    QVERIFY(m_driver->isVisible(QStringLiteral("offset.x")));
    QVERIFY(!m_driver->isVisible(QStringLiteral("stretch.y"))); // folded
    QVERIFY(!m_driver->isVisible(QStringLiteral("tint")));
    QVERIFY(m_driver->isEnabled(QStringLiteral("title")));
    QVERIFY(!m_driver->isEnabled(QStringLiteral("frame.width"))); // a preset rules
    QVERIFY(m_driver->isEnabled(QStringLiteral("frame")));
    VERIFY_FAILED(m_driver->type(QStringLiteral("frame.width"), QStringLiteral("9")),
                  "It is disabled");
}

void tst_PanelDriver::saysWhichRowsThereAre()
{
    VERIFY_FAILED(
        m_driver->type(QStringLiteral("gian"), QStringLiteral("1")),
        "type in \"gian\": There is no such row (did you mean \"gain\"? there are camera, ");
    VERIFY_FAILED(m_driver->type(QStringLiteral("badge.heigth"), QStringLiteral("1")),
                  "(did you mean \"height\"? there are width, height, constrain)");
    QVERIFY(!m_driver->value(QStringLiteral("nothing")).isValid());
    QVERIFY(m_driver->error().contains(QLatin1String("There is no such row")));
    VERIFY_DONE(m_driver->press(QStringLiteral("run")));
    QCOMPARE(m_driver->error(), QString());
}

void tst_PanelDriver::failsWhereAUserCannotAct()
{
    QWidget cover(m_rows->window());
    cover.setGeometry(m_rows->window()->rect());
    cover.show();
    VERIFY_FAILED(m_driver->press(QStringLiteral("run")), "It is covered by a QWidget");
    cover.hide();

    m_rows->row(QStringLiteral("run"))->setEnabled(false);
    VERIFY_FAILED(m_driver->press(QStringLiteral("run")), "It is disabled");
    m_rows->row(QStringLiteral("run"))->setVisible(false);
    VERIFY_FAILED(m_driver->press(QStringLiteral("run")), "It is hidden");
    m_rows->window()->hide();
    VERIFY_FAILED(m_driver->press(QStringLiteral("active")), "Its window is not shown");
    QVERIFY(m_rows->delegate().changes.isEmpty());
}

void tst_PanelDriver::failsBehindADialog()
{
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Wait"));
    dialog.setModal(true);
    dialog.show();
    VERIFY_FAILED(m_driver->press(QStringLiteral("run")), "The dialog \"Wait\" is in front of it");
    dialog.close();
    VERIFY_DONE(m_driver->press(QStringLiteral("run")));
}

void tst_PanelDriver::failsWithoutAWindow()
{
    QWidget empty;
    PanelDriver driver(&empty);
    QVERIFY(!driver.press(QStringLiteral("run")));
    QCOMPARE(driver.error(), QStringLiteral("press \"run\": There is no panel"));
    QVERIFY(driver.rows().isEmpty());

    PanelDriver none(nullptr);
    QVERIFY(!none.showTab(QStringLiteral("Colors")));
    QCOMPARE(none.error(), QStringLiteral("show tab \"Colors\": The window is gone"));
}

void tst_PanelDriver::findsAPanelThatIsBuiltAnew()
{
    VERIFY_DONE(m_driver->press(QStringLiteral("run")));
    Property other(QStringLiteral("other"), QStringLiteral("Other"), kPropertyTypeAction);
    EditRecorder recorder(nullptr);
    m_rows->panel()->deleteLater();
    auto *const panel = new PropertyEditorPanel({&other}, &recorder, nullptr);
    m_rows->window()->layout()->addWidget(panel);

    VERIFY_DONE(m_driver->press(QStringLiteral("other")));

    QVERIFY2(recorder.expectEdits(QStringLiteral("other"), {QVariant()}),
             qPrintable(recorder.error()));
    delete panel;
}

void tst_PanelDriver::survivesWhatIsDeletedMeanwhile_data()
{
    QTest::addColumn<Action>("action");

    const auto add = [](const char *name, Action action) { QTest::newRow(name) << action; };
    add("drag", [](PanelDriver &driver) { return driver.dragNear(QStringLiteral("gain"), 9); });
    add("type",
        [](PanelDriver &d) { return d.type(QStringLiteral("gain"), QStringLiteral("123")); });
    add("type in a line",
        [](PanelDriver &d) { return d.type(QStringLiteral("title"), QStringLiteral("abc")); });
    add("step", [](PanelDriver &driver) { return driver.step(QStringLiteral("gain"), 3); });
    add("wheel", [](PanelDriver &driver) { return driver.wheel(QStringLiteral("gain"), 3); });
    add("choose",
        [](PanelDriver &d) { return d.choose(QStringLiteral("mode"), QStringLiteral("Fast")); });
    add("choose a button",
        [](PanelDriver &d) { return d.choose(QStringLiteral("quality"), QStringLiteral("Good")); });
    add("choose in a list",
        [](PanelDriver &d) { return d.choose(QStringLiteral("floor"), QStringLiteral("Slate")); });
    add("check", [](PanelDriver &driver) { return driver.check(QStringLiteral("active"), false); });
    add("press", [](PanelDriver &driver) { return driver.press(QStringLiteral("run")); });
    add("close", [](PanelDriver &driver) { return driver.close(QStringLiteral("Camera")); });
    add("show tab", [](PanelDriver &driver) { return driver.showTab(QStringLiteral("Colors")); });
    add("reveal",
        [](PanelDriver &d) { return d.type(QStringLiteral("tint.red"), QStringLiteral("1")); });
    add("default",
        [](PanelDriver &driver) { return driver.setToDefault(QStringLiteral("volume")); });
}

void tst_PanelDriver::survivesWhatIsDeletedMeanwhile()
{
    QFETCH(Action, action);
    m_rows->property(QStringLiteral("volume"))->setDefaultValue(0.5);
    const QPointer<QWidget> window(m_rows->window());

    m_rows->delegate().onSetValue = [this] {
        m_rows->delegate().onSetValue = nullptr; // losing the focus is an edit, too
        delete m_rows->panel();
    };
    QVERIFY(!action(*m_driver));
    QVERIFY2(m_driver->error().contains(QLatin1String("panel")), qPrintable(m_driver->error()));

    // A window that closes and deletes itself, with all that is in it.
    auto *const top = new QWidget;
    EveryTypePanel rows;
    rows.property(QStringLiteral("volume"))->setDefaultValue(0.5);
    TextureChoice oak;
    oak.name = QStringLiteral("Slate");
    qobject_cast<TexturePropertyEditor *>(rows.editor(QStringLiteral("floor")))->setTextures({oak});
    auto *const layout = new QVBoxLayout(top);
    layout->addWidget(rows.panel());
    top->resize(500, top->sizeHint().height());
    top->show();
    QVERIFY(QTest::qWaitForWindowExposed(top));
    const QPointer<QWidget> alive(top);
    rows.delegate().onSetValue = [alive, &rows] {
        rows.delegate().onSetValue = nullptr;
        delete alive.data();
    };
    PanelDriver driver(top);
    QVERIFY(!action(driver));
    QVERIFY(!alive);
    QVERIFY2(driver.error().contains(QLatin1String("The window")), qPrintable(driver.error()));
    QVERIFY(window);
}

QTEST_MAIN(tst_PanelDriver)
#include "tst_PanelDriver.moc"
