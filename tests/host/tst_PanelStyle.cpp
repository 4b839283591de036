#include <host/PanelLook.h>
#include <host/PanelStyle.h>

#include <core/DisclosureButton.h>

#include <support/Contrast.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include <functional>
#include <memory>

using namespace Tessark::PropertyHost;
using Tessark::UI::DisclosureButton;
using TestSupport::contrast;

using MakeWidget = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWidget)
Q_DECLARE_METATYPE(PanelLook)

namespace {

QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QColor role(QPalette::ColorRole role, QPalette::ColorGroup group = QPalette::Active)
{
    return QApplication::palette().color(group, role);
}

/// The pixels of a row or column that are like the colour.
int countLike(const QVector<QColor> &line, const QColor &color)
{
    return int(std::count_if(line.cbegin(), line.cend(), [&color](const QColor &pixel) {
        return contrast(pixel, color) < 1.2;
    }));
}

/// Along an edge of a picture, without the corners.
QVector<QColor> upperEdge(const QImage &image, int y = 0)
{
    QVector<QColor> pixels;
    for (int x = 4; x < image.width() - 4; ++x)
        pixels.append(image.pixelColor(x, y));
    return pixels;
}

/// How often the colour and others take turns.
int changes(const QVector<QColor> &line, const QColor &color)
{
    int count = 0;
    for (int i = 1; i < line.size(); ++i) {
        const bool before = contrast(line.at(i - 1), color) < 1.2;
        count += before != (contrast(line.at(i), color) < 1.2) ? 1 : 0;
    }
    return count;
}

/// Pixels of a colour in a picture, and where their middle is.
struct Ink
{
    int amount = 0;
    QPointF middle;
};

Ink inkOf(const QImage &image, const QColor &color)
{
    Ink ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (contrast(image.pixelColor(x, y), color) >= 1.2)
                continue;
            ++ink.amount;
            ink.middle += QPointF(x + 0.5, y + 0.5);
        }
    }
    ink.middle /= std::max(ink.amount, 1);
    return ink;
}

} // namespace

class tst_PanelStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { applyPanelLook(PanelLook::Light); }

    void disclosureBoxIsATriangle_data();
    void disclosureBoxIsATriangle();
    void disclosureFollowsThePalette();
    void otherCheckBoxesAreNot();
    void disclosureTextIsBoldUnlessAFontIsGiven();
    void otherStyleMakesTheTextPlainAgain();
    void fontGivenLaterStays();
    void boldTextFollowsTheFontOfTheApplication();

    void horizontalLineIsSofterThanText();
    void roundButtons_data();
    void roundButtons();
    void otherButtonsAreNotRound();

    void disabledIsDashed_data();
    void disabledIsDashed();
    void disabledIsDashedInThePaletteOfTheSystem();
    void outlinesAreThoseOfThePalette_data();
    void outlinesAreThoseOfThePalette();
    void palettesWithoutOutlinesGetNone();
    void focusDoublesTheOutline();
    void statesDifferInShape_data();
    void statesDifferInShape();
    void currentTabHasABar_data();
    void currentTabHasABar();

    void boxesGrowWithTheFont();
    void boxesAreNeverSmaller();
};

void tst_PanelStyle::disclosureBoxIsATriangle_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPointF>("side"); // where most of it is

    QTest::newRow("closed") << false << Qt::LeftToRight << QPointF(-1, 0);
    QTest::newRow("closed, right to left") << false << Qt::RightToLeft << QPointF(1, 0);
    QTest::newRow("open") << true << Qt::LeftToRight << QPointF(0, -1);
    QTest::newRow("open, right to left") << true << Qt::RightToLeft << QPointF(0, -1);
}

void tst_PanelStyle::disclosureBoxIsATriangle()
{
    QFETCH(bool, open);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPointF, side);
    QCheckBox box;
    box.setProperty("disclosure", true);
    box.setChecked(open);
    box.setLayoutDirection(direction);
    QStyleOptionButton option;
    option.initFrom(&box);
    option.state.setFlag(QStyle::State_On, open);
    option.rect = QRect(0, 0, 80, 80);
    QImage image(80, 80, QImage::Format_RGB32);
    image.fill(role(QPalette::Window));
    QPainter painter(&image);

    box.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, &box);
    painter.end();

    // Half as wide as the rectangle, and as much of it as a triangle with equal sides has.
    const Ink ink = inkOf(image, role(QPalette::WindowText));
    QVERIFY2(std::abs(ink.amount - 40 * 40 * std::sqrt(3.0) / 4) < 60,
             qPrintable(QString::number(ink.amount)));
    const QPointF moved = ink.middle - QPointF(40, 40);
    const double along = QPointF::dotProduct(moved, side);
    QVERIFY2(along > 4 && along < 8, qPrintable(QString::number(along)));
}

void tst_PanelStyle::disclosureFollowsThePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::blue);
    QCheckBox box;
    box.setProperty("disclosure", true);
    box.setPalette(palette);
    box.resize(box.sizeHint());

    QVERIFY(inkOf(picture(box), Qt::red).amount > 5);
    box.setEnabled(false);
    QVERIFY(inkOf(picture(box), Qt::blue).amount > 5);
}

void tst_PanelStyle::otherCheckBoxesAreNot()
{
    QCheckBox plain;
    QCheckBox unset;
    unset.setProperty("disclosure", false);
    QCheckBox group;
    group.setProperty("disclosure", true);

    QCOMPARE(picture(unset), picture(plain));
    QVERIFY(picture(group) != picture(plain));
}

void tst_PanelStyle::disclosureTextIsBoldUnlessAFontIsGiven()
{
    QCheckBox plain;
    QCheckBox group;
    QCheckBox withFont;
    group.setProperty("disclosure", true);
    withFont.setProperty("disclosure", true);
    withFont.setFont(QFont(QStringLiteral("serif"), 9));
    for (QCheckBox *box : {&plain, &group, &withFont})
        box->ensurePolished();

    QVERIFY(!plain.font().bold());
    QVERIFY(group.font().bold());
    QVERIFY(!withFont.font().bold());
}

void tst_PanelStyle::otherStyleMakesTheTextPlainAgain()
{
    const std::unique_ptr<QStyle> other(QStyleFactory::create(QStringLiteral("Fusion")));
    QCheckBox group;
    group.setProperty("disclosure", true);
    group.ensurePolished();
    QVERIFY(group.font().bold());

    group.setStyle(other.get());

    QVERIFY(!group.font().bold());
    QVERIFY(!group.testAttribute(Qt::WA_SetFont));
    group.setStyle(nullptr);
    QVERIFY(group.font().bold());
}

void tst_PanelStyle::fontGivenLaterStays()
{
    const std::unique_ptr<QStyle> other(QStyleFactory::create(QStringLiteral("Fusion")));
    const QFont given(QStringLiteral("serif"), 17);
    QCheckBox group;
    group.setProperty("disclosure", true);
    group.ensurePolished();
    group.setFont(given);

    group.setStyle(other.get());

    QCOMPARE(group.font().pointSize(), given.pointSize());
}

void tst_PanelStyle::boldTextFollowsTheFontOfTheApplication()
{
    QWidget panel;
    QCheckBox group(&panel);
    group.setProperty("disclosure", true);
    group.ensurePolished();
    QFont font = panel.font();
    font.setPointSize(font.pointSize() + 7);

    panel.setFont(font);

    QCOMPARE(group.font().pointSize(), font.pointSize());
    QVERIFY(group.font().bold());
}

void tst_PanelStyle::horizontalLineIsSofterThanText()
{
    QFrame line;
    line.setFrameStyle(QFrame::HLine);
    line.resize(40, 9);

    const QImage image = picture(line);
    const QColor background = role(QPalette::Window);
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y)
        strongest = std::max(strongest, contrast(image.pixelColor(20, y), background));

    QVERIFY(strongest > 1.2); // it is there
    QVERIFY(strongest < contrast(role(QPalette::WindowText), background) / 2);
}

void tst_PanelStyle::roundButtons_data()
{
    QTest::addColumn<MakeWidget>("make");

    QTest::newRow("push button") << MakeWidget([] { return new QPushButton; });
    QTest::newRow("tool button") << MakeWidget([] { return new QToolButton; });
    QTest::newRow("disclosure button") << MakeWidget([] { return new DisclosureButton; });
}

void tst_PanelStyle::roundButtons()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> button(make());
    button->setProperty("group", QStringLiteral("round"));
    button->resize(40, 40);

    const QImage image = picture(*button);

    // The line crosses the middles of the edges and stays away from the corners.
    const QColor line = role(QPalette::Mid);
    for (const QPoint &point : {QPoint(20, 0), QPoint(20, 39), QPoint(0, 20), QPoint(39, 20)})
        QVERIFY(contrast(image.pixelColor(point), line) < 1.2);
    for (const QPoint &point : {QPoint(2, 2), QPoint(37, 2), QPoint(2, 37), QPoint(37, 37)})
        QCOMPARE(image.pixelColor(point), role(QPalette::Window));
}

void tst_PanelStyle::otherButtonsAreNotRound()
{
    QPushButton button;
    button.setProperty("group", QStringLiteral("square"));
    button.resize(40, 40);

    QVERIFY(picture(button).pixelColor(2, 20) != role(QPalette::Window));
    QVERIFY(picture(button).pixelColor(4, 4) != role(QPalette::Window));
}

void tst_PanelStyle::disabledIsDashed_data()
{
    QTest::addColumn<MakeWidget>("make");

    QTest::newRow("line edit") << MakeWidget([] { return new QLineEdit; });
    QTest::newRow("spin box") << MakeWidget([] { return new QSpinBox; });
    QTest::newRow("combo box") << MakeWidget([] { return new QComboBox; });
    QTest::newRow("push button") << MakeWidget([] { return new QPushButton; });
    QTest::newRow("tool button") << MakeWidget([] { return new QToolButton; });
    QTest::newRow("text") << MakeWidget([] { return new QPlainTextEdit; });
    QTest::newRow("list") << MakeWidget([] { return new QListWidget; });
}

void tst_PanelStyle::disabledIsDashed()
{
    QFETCH(MakeWidget, make);
    const std::unique_ptr<QWidget> widget(make());
    widget->resize(120, 30);
    QCOMPARE(changes(upperEdge(picture(*widget)), role(QPalette::Mid)), 0);

    widget->setEnabled(false);

    const QColor line = role(QPalette::WindowText, QPalette::Disabled);
    QVERIFY(changes(upperEdge(picture(*widget)), line) > 20);
}

void tst_PanelStyle::disabledIsDashedInThePaletteOfTheSystem()
{
    applyPanelLook(PanelLook::System);
    QLineEdit edit;
    edit.resize(120, 30);
    edit.setEnabled(false);

    const QVector<QColor> edge = upperEdge(picture(edit));

    const QColor window = role(QPalette::Window);
    QVERIFY(changes(edge, window) > 20);
    const auto seen = std::count_if(edge.cbegin(), edge.cend(), [&window](const QColor &pixel) {
        return contrast(pixel, window) >= 3;
    });
    QVERIFY(seen > edge.size() / 3);
}

void tst_PanelStyle::outlinesAreThoseOfThePalette_data()
{
    disabledIsDashed_data();
}

void tst_PanelStyle::outlinesAreThoseOfThePalette()
{
    QFETCH(MakeWidget, make);
    for (const PanelLook look : {PanelLook::Light, PanelLook::Dark, PanelLook::HighContrast}) {
        applyPanelLook(look);
        const std::unique_ptr<QWidget> widget(make());
        widget->resize(120, 30);

        const QVector<QColor> edge = upperEdge(picture(*widget));

        QCOMPARE(countLike(edge, role(QPalette::Mid)), int(edge.size()));
    }
}

void tst_PanelStyle::palettesWithoutOutlinesGetNone()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Mid, palette.color(QPalette::Window).darker(120));
    const std::unique_ptr<QStyle> base(QStyleFactory::create(QStringLiteral("Fusion")));
    QLineEdit edit;
    edit.setPalette(palette);
    edit.resize(120, 30);
    const QImage own = picture(edit);

    edit.setStyle(base.get());
    edit.setPalette(palette);

    QCOMPARE(own, picture(edit));
}

void tst_PanelStyle::focusDoublesTheOutline()
{
    QWidget window;
    window.resize(200, 100);
    QLineEdit edit(&window);
    edit.resize(120, 30);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    edit.clearFocus();
    const QColor highlight = role(QPalette::Highlight);
    QCOMPARE(countLike(upperEdge(picture(edit)), highlight), 0);

    edit.setFocus();

    const QImage image = picture(edit);
    for (const int y : {0, 1})
        QCOMPARE(countLike(upperEdge(image, y), highlight), int(upperEdge(image, y).size()));
}

void tst_PanelStyle::statesDifferInShape_data()
{
    QTest::addColumn<PanelLook>("look");

    QTest::newRow("light") << PanelLook::Light;
    QTest::newRow("dark") << PanelLook::Dark;
    QTest::newRow("high contrast") << PanelLook::HighContrast;
}

/// Whatever can be seen at all counts as black here, so only shapes remain.
void tst_PanelStyle::statesDifferInShape()
{
    QFETCH(PanelLook, look);
    applyPanelLook(look);
    QVector<QImage> shapes;
    for (const Qt::CheckState state : {Qt::Unchecked, Qt::PartiallyChecked, Qt::Checked}) {
        for (const bool enabled : {true, false}) {
            QCheckBox box;
            box.setTristate();
            box.setCheckState(state);
            box.setEnabled(enabled);
            QImage image = picture(box);
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    image.setPixelColor(x, y,
                                        contrast(image.pixelColor(x, y), role(QPalette::Window)) > 2
                                            ? Qt::black
                                            : Qt::white);
            }
            QVERIFY(!shapes.contains(image));
            shapes.append(image);
        }
    }
}

void tst_PanelStyle::currentTabHasABar_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QPoint>("outwards");

    QTest::newRow("north") << QTabBar::RoundedNorth << QPoint(0, -1);
    QTest::newRow("south") << QTabBar::RoundedSouth << QPoint(0, 1);
    QTest::newRow("west") << QTabBar::RoundedWest << QPoint(-1, 0);
    QTest::newRow("east") << QTabBar::RoundedEast << QPoint(1, 0);
}

void tst_PanelStyle::currentTabHasABar()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QPoint, outwards);
    QTabBar bar;
    bar.setShape(shape);
    bar.setDrawBase(false);
    bar.setFocusPolicy(Qt::NoFocus);
    bar.addTab(QStringLiteral("One"));
    bar.addTab(QStringLiteral("Two"));
    bar.resize(bar.sizeHint());
    const QImage image = picture(bar);

    const auto edgeOf = [&image, outwards](const QRect &tab, int inside) {
        const QPoint middle = tab.center();
        const QPoint half(tab.width() / 2, tab.height() / 2);
        const QPoint edge = middle + QPoint(half.x() * outwards.x(), half.y() * outwards.y());
        return image.pixelColor(edge - outwards * inside);
    };
    QVERIFY(contrast(edgeOf(bar.tabRect(0), 1), role(QPalette::Highlight)) < 1.2);
    QVERIFY(contrast(edgeOf(bar.tabRect(1), 1), role(QPalette::Highlight)) > 1.2);
}

void tst_PanelStyle::boxesGrowWithTheFont()
{
    for (QStyle::PixelMetric metric :
         {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight, QStyle::PM_ExclusiveIndicatorWidth,
          QStyle::PM_ExclusiveIndicatorHeight}) {
        QCheckBox box;
        QFont font = box.font();
        font.setPointSize(40);
        box.setFont(font);

        QCOMPARE(box.style()->pixelMetric(metric, nullptr, &box), box.fontMetrics().ascent());
    }
}

void tst_PanelStyle::boxesAreNeverSmaller()
{
    const std::unique_ptr<QStyle> base(QStyleFactory::create(QStringLiteral("Fusion")));
    QCheckBox box;
    QFont font = box.font();
    font.setPointSize(4);
    box.setFont(font);

    QCOMPARE(box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box),
             base->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box));
}

QTEST_MAIN(tst_PanelStyle)
#include "tst_PanelStyle.moc"
