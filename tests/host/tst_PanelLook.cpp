#include <host/PanelLook.h>
#include <host/PanelStyle.h>

#include <support/Contrast.h>

#include <QApplication>
#include <QStyleFactory>
#include <QTest>
#include <QToolTip>
#include <QWidget>

using namespace Tessark::PropertyHost;
using TestSupport::contrast;

Q_DECLARE_METATYPE(PanelLook)

namespace {

using Roles = std::pair<QPalette::ColorRole, QPalette::ColorRole>;

// Every text of a panel with what it can stand on.
const Roles kTexts[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::ButtonText, QPalette::Window},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::HighlightedText, QPalette::Highlight},
    {QPalette::Link, QPalette::Window},
    {QPalette::LinkVisited, QPalette::Window},
};

/// A system's palette of such colours for surfaces and texts. It says nothing of what is disabled,
/// so that disabled texts are like others.
QPalette systemPalette(const QColor &window, const QColor &base, const QColor &text,
                       const QColor &highlight)
{
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::PlaceholderText})
        palette.setColor(role, text);
    return palette;
}

QPalette fusion()
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Fusion")));
    return style->standardPalette();
}

int difference(const QColor &a, const QColor &b)
{
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue())});
}

QString describe(int group, const Roles &roles, double ratio)
{
    return QStringLiteral("group %1, role %2 on %3: %4")
        .arg(group)
        .arg(roles.first)
        .arg(roles.second)
        .arg(ratio);
}

} // namespace

class tst_PanelLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { applyPanelLook(PanelLook::System); }

    void everyRoleIsSet_data();
    void everyRoleIsSet();
    void textsAreReadable_data() { everyRoleIsSet_data(); }
    void textsAreReadable();
    void outlinesAreSeen_data() { everyRoleIsSet_data(); }
    void outlinesAreSeen();
    void disabledTextDiffers_data() { everyRoleIsSet_data(); }
    void disabledTextDiffers();
    void brightnessIsTheLooks_data() { everyRoleIsSet_data(); }
    void brightnessIsTheLooks();

    void systemLookIsThePalette();
    void surfacesStayWhereTheyFit();
    void turningRoundTwiceIsTheSame();
    void highlightKeepsItsHue();
    void highContrastFollowsTheSystem();

    void applyingSetsThePalette();
    void applyingSetsTheStyle();
    void systemLookTakesThePaletteBack();
    void looksDoNotAddUp();
    void toolTipsHaveThePalette();
};

void tst_PanelLook::everyRoleIsSet_data()
{
    QTest::addColumn<QPalette>("system");
    QTest::addColumn<PanelLook>("look");

    const std::pair<const char *, QPalette> systems[] = {
        {"Fusion's", fusion()},
        {"a pale one",
         systemPalette(QColor(250, 246, 235), Qt::white, QColor(110, 110, 110), Qt::cyan)},
        {"a dark one",
         systemPalette(QColor(49, 54, 59), QColor(35, 38, 41), Qt::white, QColor(61, 174, 233))},
        {"a black one", systemPalette(Qt::black, Qt::black, Qt::green, Qt::yellow)},
        {"a grey one", systemPalette(Qt::gray, Qt::gray, Qt::darkGray, Qt::gray)},
    };
    for (const auto &[name, palette] : systems) {
        QTest::addRow("light from %s", name) << palette << PanelLook::Light;
        QTest::addRow("dark from %s", name) << palette << PanelLook::Dark;
        QTest::addRow("high contrast from %s", name) << palette << PanelLook::HighContrast;
    }
}

void tst_PanelLook::everyRoleIsSet()
{
    QFETCH(QPalette, system);
    QFETCH(PanelLook, look);
    const QPalette palette = panelPalette(look, system);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role <= QPalette::PlaceholderText; ++role) {
            if (role != QPalette::NoRole)
                QVERIFY2(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role)),
                         qPrintable(QString::number(role)));
        }
    }
}

void tst_PanelLook::textsAreReadable()
{
    QFETCH(QPalette, system);
    QFETCH(PanelLook, look);
    const QPalette palette = panelPalette(look, system);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double usual = look == PanelLook::HighContrast ? 7 : 4.5;
        const double wanted = group == QPalette::Disabled ? 3 : usual;
        for (const Roles &roles : kTexts) {
            const double ratio =
                contrast(palette.color(group, roles.first), palette.color(group, roles.second));
            QVERIFY2(ratio >= wanted, qPrintable(describe(group, roles, ratio)));
        }
    }
}

void tst_PanelLook::outlinesAreSeen()
{
    QFETCH(QPalette, system);
    QFETCH(PanelLook, look);
    const QPalette palette = panelPalette(look, system);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double ratio =
            contrast(palette.color(group, QPalette::Mid), palette.color(group, QPalette::Window));
        QVERIFY2(ratio >= 3, qPrintable(QString::number(ratio)));
    }
}

void tst_PanelLook::disabledTextDiffers()
{
    QFETCH(QPalette, system);
    QFETCH(PanelLook, look);
    const QPalette palette = panelPalette(look, system);

    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor active = palette.color(QPalette::Active, role);
        const QColor disabled = palette.color(QPalette::Disabled, role);
        QVERIFY2(contrast(active, disabled) > 1.2, qPrintable(active.name() + disabled.name()));
    }
}

void tst_PanelLook::brightnessIsTheLooks()
{
    QFETCH(QPalette, system);
    QFETCH(PanelLook, look);
    const QPalette palette = panelPalette(look, system);
    const auto isDark = [](const QPalette &some) {
        return TestSupport::luminance(some.color(QPalette::Window)) < 0.18;
    };

    QCOMPARE(isDark(palette),
             look == PanelLook::HighContrast ? isDark(system) : look == PanelLook::Dark);
}

void tst_PanelLook::systemLookIsThePalette()
{
    const QPalette system = systemPalette(Qt::gray, Qt::gray, Qt::darkGray, Qt::gray);

    QCOMPARE(panelPalette(PanelLook::System, system), system);
    QCOMPARE(panelPalette(PanelLook::System), QApplication::palette());
}

void tst_PanelLook::surfacesStayWhereTheyFit()
{
    const QPalette light = fusion();
    const QPalette dark =
        systemPalette(QColor(49, 54, 59), QColor(35, 38, 41), Qt::white, QColor(61, 174, 233));

    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        QCOMPARE(panelPalette(PanelLook::Light, light).color(role), light.color(role));
        QCOMPARE(panelPalette(PanelLook::Dark, dark).color(role), dark.color(role));
    }
    QCOMPARE(panelPalette(PanelLook::Dark, dark).color(QPalette::Text), QColor(Qt::white));
}

void tst_PanelLook::turningRoundTwiceIsTheSame()
{
    const QPalette light = panelPalette(PanelLook::Light, fusion());
    const QPalette dark = panelPalette(PanelLook::Dark, light);
    const QPalette again = panelPalette(PanelLook::Light, dark);

    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::Text,
                            QPalette::WindowText, QPalette::Highlight}) {
        const QColor before = light.color(role);
        QVERIFY2(difference(again.color(role), before) <= 2, qPrintable(again.color(role).name()));
    }
}

void tst_PanelLook::highlightKeepsItsHue()
{
    const QPalette orange =
        systemPalette(QColor(240, 240, 240), Qt::white, Qt::black, QColor(247, 147, 30));

    for (const PanelLook look : {PanelLook::Light, PanelLook::Dark}) {
        const QColor highlight = panelPalette(look, orange).color(QPalette::Highlight);
        QVERIFY2(std::abs(highlight.hue() - QColor(247, 147, 30).hue()) <= 2,
                 qPrintable(highlight.name()));
    }
}

void tst_PanelLook::highContrastFollowsTheSystem()
{
    const QPalette bright = panelPalette(PanelLook::HighContrast, fusion());
    const QPalette dark =
        panelPalette(PanelLook::HighContrast, panelPalette(PanelLook::Dark, fusion()));

    QCOMPARE(bright.color(QPalette::Window), QColor(Qt::white));
    QCOMPARE(bright.color(QPalette::WindowText), QColor(Qt::black));
    QCOMPARE(dark.color(QPalette::Window), QColor(Qt::black));
    QCOMPARE(dark.color(QPalette::WindowText), QColor(Qt::white));
}

void tst_PanelLook::applyingSetsThePalette()
{
    const QPalette system = QApplication::palette();
    for (const PanelLook look : {PanelLook::Dark, PanelLook::Light, PanelLook::HighContrast}) {
        applyPanelLook(look);
        const QWidget widget;
        const QPalette expected = panelPalette(look, system);
        for (const auto role : {QPalette::Window, QPalette::Text, QPalette::Mid})
            QCOMPARE(widget.palette().color(role), expected.color(role));
    }
}

void tst_PanelLook::applyingSetsTheStyle()
{
    for (const PanelLook look : {PanelLook::System, PanelLook::Dark}) {
        applyPanelLook(look);
        QVERIFY(qobject_cast<PanelStyle *>(QApplication::style()));
    }
}

void tst_PanelLook::systemLookTakesThePaletteBack()
{
    applyPanelLook(PanelLook::System);
    const QPalette before = QApplication::palette();

    applyPanelLook(PanelLook::Dark);
    QVERIFY(QApplication::palette().color(QPalette::Window) != before.color(QPalette::Window));
    applyPanelLook(PanelLook::System);

    for (const auto role : {QPalette::Window, QPalette::Text, QPalette::Highlight})
        QCOMPARE(QApplication::palette().color(role), before.color(role));
}

void tst_PanelLook::looksDoNotAddUp()
{
    applyPanelLook(PanelLook::Light);
    const QPalette light = QApplication::palette();

    applyPanelLook(PanelLook::HighContrast);
    applyPanelLook(PanelLook::Dark);
    applyPanelLook(PanelLook::Light);

    for (const auto role : {QPalette::Window, QPalette::Text, QPalette::Highlight})
        QCOMPARE(QApplication::palette().color(role), light.color(role));
}

void tst_PanelLook::toolTipsHaveThePalette()
{
    applyPanelLook(PanelLook::Dark);

    QCOMPARE(QToolTip::palette().color(QPalette::ToolTipText),
             QApplication::palette().color(QPalette::ToolTipText));
}

QTEST_MAIN(tst_PanelLook)
#include "tst_PanelLook.moc"
