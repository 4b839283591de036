#include <tools/property-panel/PanelStyle.h>
#include <tools/property-panel/Themes.h>

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QImage>
#include <QStyleFactory>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace Tessark::PropertyPanel;

Q_DECLARE_METATYPE(Theme)

namespace {

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(double(color.redF())) + 0.7152 * linear(double(color.greenF()))
           + 0.0722 * linear(double(color.blueF()));
}

double contrast(const QColor &a, const QColor &b)
{
    const double brighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (brighter + 0.05) / (darker + 0.05);
}

QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

class tst_Themes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRoleIsSet_data();
    void everyRoleIsSet();
    void textsAreReadable_data();
    void textsAreReadable();
    void disabledTextDiffers_data();
    void disabledTextDiffers();
    void systemThemeLeavesThePalette();
    void applyingSetsThePalette();
    void disclosureBoxIsATriangle();
    void disclosureTextIsBoldUnlessAFontIsGiven();
    void horizontalLineIsSofterThanText();
};

void tst_Themes::everyRoleIsSet_data()
{
    QTest::addColumn<Theme>("theme");

    QTest::newRow("light") << Theme::Light;
    QTest::newRow("dark") << Theme::Dark;
}

void tst_Themes::everyRoleIsSet()
{
    QFETCH(Theme, theme);
    const QPalette palette = themePalette(theme);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role <= QPalette::PlaceholderText; ++role) {
            if (role != QPalette::NoRole)
                QVERIFY2(palette.isBrushSet(group, static_cast<QPalette::ColorRole>(role)),
                         qPrintable(QString::number(role)));
        }
    }
}

void tst_Themes::textsAreReadable_data()
{
    everyRoleIsSet_data();
}

void tst_Themes::textsAreReadable()
{
    QFETCH(Theme, theme);
    const QPalette palette = themePalette(theme);
    constexpr double kReadable = 4.5;

    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window},
    };
    for (const auto &[text, background] : pairs) {
        const double ratio = contrast(palette.color(text), palette.color(background));
        QVERIFY2(ratio >= kReadable,
                 qPrintable(QStringLiteral("role %1: %2").arg(text).arg(ratio)));
    }
}

void tst_Themes::disabledTextDiffers_data()
{
    everyRoleIsSet_data();
}

void tst_Themes::disabledTextDiffers()
{
    QFETCH(Theme, theme);
    const QPalette palette = themePalette(theme);

    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        QVERIFY(palette.color(QPalette::Disabled, role) != palette.color(QPalette::Active, role));
}

void tst_Themes::systemThemeLeavesThePalette()
{
    const QPalette before = QApplication::palette();

    applyTheme(Theme::System);

    QCOMPARE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    QCOMPARE(QApplication::palette().color(QPalette::Text), before.color(QPalette::Text));
}

void tst_Themes::applyingSetsThePalette()
{
    for (const Theme theme : {Theme::Dark, Theme::Light}) {
        applyTheme(theme);
        const QWidget widget;
        QCOMPARE(widget.palette().color(QPalette::Window),
                 themePalette(theme).color(QPalette::Window));
    }
}

void tst_Themes::disclosureBoxIsATriangle()
{
    applyTheme(Theme::Light);
    QCheckBox plain;
    QCheckBox group;
    group.setProperty("disclosure", true);
    plain.setChecked(true);
    group.setChecked(true);

    QVERIFY(picture(plain) != picture(group));
    const QImage open = picture(group);
    group.setChecked(false);
    QVERIFY(picture(group) != open);
}

void tst_Themes::disclosureTextIsBoldUnlessAFontIsGiven()
{
    applyTheme(Theme::Light);
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

void tst_Themes::horizontalLineIsSofterThanText()
{
    applyTheme(Theme::Light);
    QFrame line;
    line.setFrameStyle(QFrame::HLine);
    line.resize(40, 9);

    const QImage image = picture(line);
    const QColor background = QApplication::palette().color(QPalette::Window);
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y)
        strongest = std::max(strongest, contrast(image.pixelColor(20, y), background));

    QVERIFY(strongest > 1.2); // it is there
    QVERIFY(strongest
            < contrast(QApplication::palette().color(QPalette::WindowText), background) / 2);
}

QTEST_MAIN(tst_Themes)
#include "tst_Themes.moc"
