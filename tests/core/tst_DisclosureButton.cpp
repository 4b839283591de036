#include "core/DisclosureButton.h"

#include <QAccessible>
#include <QCheckBox>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QStyle>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <memory>

using Tessark::UI::DisclosureButton;
using Tessark::UI::disclosureStyleSheet;

namespace {

const QColor kRed(255, 0, 0);
const QColor kGreen(0, 255, 0);
const QColor kBlue(0, 0, 255);

/// The widget as it paints itself on white, without the background of its window.
QImage pictureOf(QWidget *widget, double ratio = 1)
{
    QImage image(widget->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

struct Ink
{
    double amount = 0; // in logical pixels
    QPointF centre;    // in logical pixels
};

/// How much of the part differs from white, and where.
Ink inkOf(const QImage &image, const QRect &part = QRect())
{
    const double ratio = image.devicePixelRatio();
    const QRectF seen =
        part.isNull() ? QRectF(image.rect()) : QRectF(part.topLeft() * ratio, part.size() * ratio);
    double amount = 0;
    QPointF sum;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QPointF pixel(x + 0.5, y + 0.5);
            if (!seen.contains(pixel))
                continue;
            const double darkness = 1 - QColor(image.pixel(x, y)).lightnessF();
            amount += darkness;
            sum += pixel * darkness;
        }
    }
    return {amount / (ratio * ratio), amount > 0 ? sum / amount / ratio : QPointF()};
}

bool isNear(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) < 0.06;
}

/// Where the middle of mass of a triangle lies that points along direction and whose bounding box
/// is centred.
QPointF expectedCentre(const QSize &size, const QPointF &direction)
{
    const double side = 0.5 * qMin(size.width(), size.height());
    const double offset = side * std::sqrt(3.0) / 12;
    return QPointF(size.width() / 2.0, size.height() / 2.0) - direction * offset;
}

QPalette blackOnWhite()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, kBlue);
    palette.setColor(QPalette::Highlight, kRed);
    return palette;
}

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget)
        : QObject(widget)
    {
        widget->installEventFilter(this);
    }

    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

class tst_DisclosureButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fresh();
    void secondArgumentIsFlat();
    void propertiesAreInTheMetaObject();
    void sizeHintIsASquare();

    void trianglePointsTheWay_data();
    void trianglePointsTheWay();
    void triangleIsHalfTheButton();
    void disabledTriangle();
    void directionChangeRepaints();

    void flatHasNoPlateAtRest();
    void plateOnHover();
    void plateWhilePressed();
    void plateWhenFocusedByKey();
    void focusByMouseShowsNoPlate();
    void plateThatIsNotFlat();
    void roundPlate();
    void groupRepaints();
    void setFlatRepaints();

    void iconsReplaceTheTriangle();
    void iconFollowsTheState();

    void sheetBackground_data();
    void sheetBackground();
    void sheetColor_data();
    void sheetColor();
    void sheetBorder();
    void sheetReplacesThePlate_data();
    void sheetReplacesThePlate();
    void sheetForTheGroupSetLater();
    void sheetOfSomebodyElse();
    void sheetIcons();

    void keys_data();
    void keys();
    void keysWithModifiersAreNotOurs();
    void keysOfAnUncheckableButton();
    void enterIsNotOurs();
    void click();
    void setCheckedAnnouncesToggled();
    void blockedSetCheckedIsSilent();
    void slotMayDelete_data();
    void slotMayDelete();

    void accessibleCheckBox();
    void accessibleName();

    void checkBoxSheet_data();
    void checkBoxSheet();
    void checkBoxSheetKeepsThePlaceOfTheText();
    void checkBoxSheetFollowsThePalette();
    void checkBoxSheetDisabled();
    void checkBoxSheetLeavesOthersAlone();

private:
    void showAndActivate();
    void hover();

    std::unique_ptr<QWidget> m_window;
    DisclosureButton *m_button = nullptr;
    QToolButton *m_other = nullptr; // takes the focus before the button does
};

void tst_DisclosureButton::init()
{
    m_window = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(m_window.get());
    m_other = new QToolButton;
    m_other->setFocusPolicy(Qt::StrongFocus);
    m_button = new DisclosureButton;
    layout->addWidget(m_other);
    layout->addWidget(m_button);
    m_button->setPalette(blackOnWhite());
    m_button->setFixedSize(16, 16);
}

void tst_DisclosureButton::cleanup()
{
    m_window.reset();
    QApplication::setPalette(QPalette());
}

void tst_DisclosureButton::showAndActivate()
{
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_DisclosureButton::hover()
{
    showAndActivate();
    QWindow *const window = m_window->windowHandle();
    QTest::mouseMove(window, QPoint(0, 0));
    QTest::mouseMove(window, m_button->geometry().center());
    QTRY_VERIFY(m_button->underMouse());
}

void tst_DisclosureButton::fresh()
{
    DisclosureButton button;

    QVERIFY(button.isFlat());
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QVERIFY(button.openIcon().isNull());
    QVERIFY(button.closedIcon().isNull());
    QVERIFY(button.focusPolicy() & Qt::TabFocus);
    QVERIFY(button.focusPolicy() & Qt::ClickFocus);
    QVERIFY(!(button.focusPolicy() & ~Qt::StrongFocus));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(!button.parent());
    QCOMPARE(QByteArray(button.metaObject()->className()),
             QByteArray("Tessark::UI::DisclosureButton"));
}

void tst_DisclosureButton::secondArgumentIsFlat()
{
    QWidget parent;
    const auto *const button = new DisclosureButton(&parent, false);

    QVERIFY(!button->isFlat());
    QCOMPARE(button->parentWidget(), &parent);
    QVERIFY(DisclosureButton(nullptr, true).isFlat());
}

void tst_DisclosureButton::propertiesAreInTheMetaObject()
{
    const QIcon icon = m_window->style()->standardIcon(QStyle::SP_DirIcon);

    QVERIFY(m_button->setProperty("flat", false));
    QVERIFY(m_button->setProperty("openIcon", icon));
    QVERIFY(m_button->setProperty("closedIcon", icon));

    QVERIFY(!m_button->isFlat());
    QCOMPARE(m_button->openIcon().cacheKey(), icon.cacheKey());
    QCOMPARE(m_button->closedIcon().cacheKey(), icon.cacheKey());
}

void tst_DisclosureButton::sizeHintIsASquare()
{
    DisclosureButton button;
    const int indicator = button.style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &button);

    QCOMPARE(button.sizeHint(), QSize(qMax(16, indicator), qMax(16, indicator)));
    QCOMPARE(button.minimumSizeHint(), button.sizeHint());
}

void tst_DisclosureButton::trianglePointsTheWay_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<double>("ratio");

    QTest::newRow("even, 1") << 16 << 1.0;
    QTest::newRow("odd, 1") << 17 << 1.0;
    QTest::newRow("large, 1") << 40 << 1.0;
    QTest::newRow("even, 1.5") << 16 << 1.5;
    QTest::newRow("even, 2") << 16 << 2.0;
    QTest::newRow("odd, 2") << 17 << 2.0;
}

void tst_DisclosureButton::trianglePointsTheWay()
{
    QFETCH(int, side);
    QFETCH(double, ratio);
    m_button->setFixedSize(side, side + 4);
    const auto centre = [&] { return inkOf(pictureOf(m_button, ratio)).centre; };

    QVERIFY(isNear(centre(), expectedCentre(m_button->size(), QPointF(1, 0))));
    m_button->setChecked(true);
    QVERIFY(isNear(centre(), expectedCentre(m_button->size(), QPointF(0, 1))));
    m_button->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(isNear(centre(), expectedCentre(m_button->size(), QPointF(0, 1))));
    m_button->setChecked(false);
    QVERIFY(isNear(centre(), expectedCentre(m_button->size(), QPointF(-1, 0))));
}

void tst_DisclosureButton::triangleIsHalfTheButton()
{
    for (const int side : {16, 17, 24, 40}) {
        m_button->setFixedSize(side, side);
        const double area = std::sqrt(3.0) / 4 * (side / 2.0) * (side / 2.0);

        QVERIFY(std::fabs(inkOf(pictureOf(m_button)).amount / area - 1) < 0.02);
    }
    const QRgb middle = pictureOf(m_button).pixel(20, 20);
    QCOMPARE(middle, QColor(Qt::black).rgb());
}

void tst_DisclosureButton::disabledTriangle()
{
    m_button->setFixedSize(40, 40);
    QCOMPARE(pictureOf(m_button).pixelColor(20, 20), QColor(Qt::black));

    m_button->setEnabled(false);

    QCOMPARE(pictureOf(m_button).pixelColor(20, 20), kBlue);
}

void tst_DisclosureButton::directionChangeRepaints()
{
    showAndActivate();
    const PaintCounter paints(m_button);
    m_button->update();
    QTRY_COMPARE(paints.count(), 1);

    m_button->setLayoutDirection(Qt::RightToLeft);

    QTRY_COMPARE(paints.count(), 2);
}

void tst_DisclosureButton::flatHasNoPlateAtRest()
{
    const QImage picture = pictureOf(m_button);

    QCOMPARE(picture.pixelColor(1, 8), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(8, 1), QColor(Qt::white));
}

void tst_DisclosureButton::plateOnHover()
{
    hover();

    QVERIFY(pictureOf(m_button).pixelColor(2, 8) != QColor(Qt::white));
    QTest::mouseMove(m_window->windowHandle(), m_other->geometry().center());
    QTRY_VERIFY(!m_button->underMouse());
    QCOMPARE(pictureOf(m_button).pixelColor(2, 8), QColor(Qt::white));
}

void tst_DisclosureButton::plateWhilePressed()
{
    QTest::mousePress(m_button, Qt::LeftButton);
    QVERIFY(pictureOf(m_button).pixelColor(2, 8) != QColor(Qt::white));

    QTest::mouseRelease(m_button, Qt::LeftButton);
    QCOMPARE(pictureOf(m_button).pixelColor(2, 8), QColor(Qt::white));
}

void tst_DisclosureButton::plateWhenFocusedByKey()
{
    showAndActivate();
    m_other->setFocus();

    QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);

    QVERIFY(m_button->hasFocus());
    const QImage picture = pictureOf(m_button);
    QVERIFY(picture.pixelColor(2, 8) != QColor(Qt::white));
    QCOMPARE(picture.pixelColor(0, 8), kRed); // outlined in the highlight colour
}

void tst_DisclosureButton::focusByMouseShowsNoPlate()
{
    showAndActivate();
    m_other->setFocus();

    QTest::mouseClick(m_button, Qt::LeftButton);

    QVERIFY(m_button->hasFocus());
    QVERIFY(!m_button->underMouse());
    QCOMPARE(pictureOf(m_button).pixelColor(2, 2), QColor(Qt::white));
    QCOMPARE(pictureOf(m_button).pixelColor(0, 8), QColor(Qt::white));
}

void tst_DisclosureButton::plateThatIsNotFlat()
{
    m_button->setFlat(false);

    const QImage picture = pictureOf(m_button);

    QVERIFY(picture.pixelColor(2, 8) != QColor(Qt::white));
    QCOMPARE(picture.pixelColor(0, 8), picture.pixelColor(2, 8));
    QCOMPARE(picture.pixelColor(3, 0), picture.pixelColor(2, 8));
    QVERIFY(picture.pixelColor(0, 0).lightness() > 250); // rounded corner
}

void tst_DisclosureButton::roundPlate()
{
    m_button->setFlat(false);
    m_button->setProperty("group", QStringLiteral("round"));
    QImage picture = pictureOf(m_button);
    QCOMPARE(picture.pixelColor(3, 0), QColor(Qt::white));
    QCOMPARE(picture.pixelColor(1, 1), QColor(Qt::white));
    QVERIFY(picture.pixelColor(8, 0) != QColor(Qt::white));
    QVERIFY(picture.pixelColor(0, 8) != QColor(Qt::white));

    m_button->setProperty("group", QStringLiteral("square"));
    QVERIFY(pictureOf(m_button).pixelColor(3, 0) != QColor(Qt::white));
}

void tst_DisclosureButton::groupRepaints()
{
    showAndActivate();
    const PaintCounter paints(m_button);
    m_button->update();
    QTRY_COMPARE(paints.count(), 1);

    m_button->setProperty("group", QStringLiteral("round"));
    QTRY_COMPARE(paints.count(), 2);

    m_button->setProperty("unrelated", 1);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 2);
}

void tst_DisclosureButton::setFlatRepaints()
{
    showAndActivate();
    const PaintCounter paints(m_button);
    m_button->update();
    QTRY_COMPARE(paints.count(), 1);

    m_button->setFlat(false);
    QTRY_COMPARE(paints.count(), 2);
    m_button->setOpenIcon(QIcon());
    QTRY_COMPARE(paints.count(), 3);
    m_button->setClosedIcon(QIcon());
    QTRY_COMPARE(paints.count(), 4);
}

void tst_DisclosureButton::iconsReplaceTheTriangle()
{
    QPixmap green(16, 16);
    green.fill(kGreen);
    QPixmap blue(16, 16);
    blue.fill(kBlue);

    m_button->setClosedIcon(green);
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kGreen);
    QCOMPARE(pictureOf(m_button).pixelColor(1, 1), kGreen);
    m_button->setChecked(true); // no icon for this state yet
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), QColor(Qt::black));
    m_button->setOpenIcon(blue);
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kBlue);
    m_button->setChecked(false);
    m_button->setClosedIcon(QIcon());
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), QColor(Qt::black));
}

void tst_DisclosureButton::iconFollowsTheState()
{
    QPixmap green(16, 16);
    green.fill(kGreen);
    QPixmap blue(16, 16);
    blue.fill(kBlue);
    QPixmap red(16, 16);
    red.fill(kRed);
    QIcon icon(green);
    icon.addPixmap(blue, QIcon::Disabled);
    icon.addPixmap(red, QIcon::Active);
    m_button->setClosedIcon(icon);

    hover();
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kRed);

    m_button->setEnabled(false);
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kBlue);
}

void tst_DisclosureButton::sheetBackground_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<bool>("atRest"); // the rule already applies to an untouched button

    QTest::newRow("plain") << QString() << true;
    QTest::newRow("checked") << QStringLiteral(":checked") << false;
    QTest::newRow("hover") << QStringLiteral(":hover") << false;
    QTest::newRow("pressed") << QStringLiteral(":pressed") << false;
    QTest::newRow("disabled") << QStringLiteral(":disabled") << false;
    QTest::newRow("group") << QStringLiteral("[group=\"round\"]") << false;
}

/// Brings the button into the state that a selector names.
#define ENTER_STATE(selector)                                                                      \
    do {                                                                                           \
        if ((selector) == QLatin1String(":checked"))                                               \
            m_button->setChecked(true);                                                            \
        else if ((selector) == QLatin1String(":hover"))                                            \
            hover();                                                                               \
        else if ((selector) == QLatin1String(":pressed"))                                          \
            m_button->setDown(true);                                                               \
        else if ((selector) == QLatin1String(":disabled"))                                         \
            m_button->setEnabled(false);                                                           \
        else if (!(selector).isEmpty())                                                            \
            m_button->setProperty("group", QStringLiteral("round"));                               \
    } while (false)

void tst_DisclosureButton::sheetBackground()
{
    QFETCH(QString, selector);
    QFETCH(bool, atRest);
    m_window->setStyleSheet(
        QStringLiteral("Tessark--UI--DisclosureButton%1 { background: #00ff00; }").arg(selector));
    QCOMPARE(pictureOf(m_button).pixelColor(1, 1) == kGreen, atRest);

    ENTER_STATE(selector);

    QCOMPARE(pictureOf(m_button).pixelColor(1, 1), kGreen); // not tinted by a plate
    QCOMPARE(pictureOf(m_button).pixelColor(8, 14), kGreen);
}

void tst_DisclosureButton::sheetColor_data()
{
    sheetBackground_data();
}

void tst_DisclosureButton::sheetColor()
{
    QFETCH(QString, selector);
    QFETCH(bool, atRest);
    m_window->setStyleSheet(
        QStringLiteral("Tessark--UI--DisclosureButton%1 { color: #ff0000; }").arg(selector));
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8) == kRed, atRest);

    ENTER_STATE(selector);

    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kRed);
}

void tst_DisclosureButton::sheetBorder()
{
    m_window->setStyleSheet(
        QStringLiteral("Tessark--UI--DisclosureButton { border: 2px solid #0000ff; }"));

    const QImage picture = pictureOf(m_button);

    QCOMPARE(picture.pixelColor(1, 8), kBlue);
    QCOMPARE(picture.pixelColor(8, 14), kBlue);
    QCOMPARE(picture.pixelColor(3, 3), QColor(Qt::white));
}

void tst_DisclosureButton::sheetReplacesThePlate_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<bool>("replaces");

    QTest::newRow("colour alone") << QStringLiteral("color: #ff0000") << false;
    QTest::newRow("background") << QStringLiteral("background: #ffffff") << true;
    QTest::newRow("gradient") << QStringLiteral(
        "background: qlineargradient(stop: 0 white, stop: 1 white)")
                              << true;
    QTest::newRow("image") << QStringLiteral("background: url(%1)") << true;
    QTest::newRow("border") << QStringLiteral("border: 1px solid black") << true;
    QTest::newRow("rounded border")
        << QStringLiteral("border: 1px solid black; border-radius: 4px") << true;
}

void tst_DisclosureButton::sheetReplacesThePlate()
{
    QFETCH(QString, rule);
    QFETCH(bool, replaces);
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("white.png"));
    QImage white(16, 16, QImage::Format_RGB32);
    white.fill(Qt::white);
    QVERIFY(white.save(file));
    m_button->setFlat(false);

    m_window->setStyleSheet(QStringLiteral("Tessark--UI--DisclosureButton { %1; }")
                                .arg(rule.contains(QLatin1Char('%')) ? rule.arg(file) : rule));

    QCOMPARE(pictureOf(m_button).pixelColor(3, 8) == QColor(Qt::white), replaces);
}

void tst_DisclosureButton::sheetForTheGroupSetLater()
{
    m_window->setStyleSheet(QStringLiteral("Tessark--UI--DisclosureButton[group=\"round\"] { "
                                           "background: #00ff00; qproperty-flat: 0; }"));
    QCOMPARE(pictureOf(m_button).pixelColor(1, 1), QColor(Qt::white));
    QVERIFY(m_button->isFlat());

    m_button->setProperty("group", QStringLiteral("round"));
    QCOMPARE(pictureOf(m_button).pixelColor(1, 1), kGreen);
    QVERIFY(!m_button->isFlat());

    m_button->setFlat(true);
    m_button->setProperty("group", QVariant());
    QCOMPARE(pictureOf(m_button).pixelColor(1, 1), QColor(Qt::white));
}

void tst_DisclosureButton::sheetOfSomebodyElse()
{
    const QImage before = pictureOf(m_button);

    m_window->setStyleSheet(QStringLiteral("QLineEdit { background: #00ff00; }"));

    QCOMPARE(pictureOf(m_button), before);
}

void tst_DisclosureButton::sheetIcons()
{
    const QTemporaryDir directory;
    QVERIFY(directory.isValid());
    const QString green = directory.filePath(QStringLiteral("green.png"));
    const QString blue = directory.filePath(QStringLiteral("blue.png"));
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(kGreen);
    QVERIFY(image.save(green));
    image.fill(kBlue);
    QVERIFY(image.save(blue));

    m_window->setStyleSheet(QStringLiteral("Tessark--UI--DisclosureButton {"
                                           "qproperty-closedIcon: url(%1);"
                                           "qproperty-openIcon: url(%2); }")
                                .arg(green, blue));

    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kGreen);
    m_button->setChecked(true);
    QCOMPARE(pictureOf(m_button).pixelColor(8, 8), kBlue);
}

void tst_DisclosureButton::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");

    const struct
    {
        const char *name;
        int key;
        bool rightToLeft;
        bool unfolds;
    } rows[] = {
        {"Right", Qt::Key_Right, false, true},
        {"Plus", Qt::Key_Plus, false, true},
        {"Left", Qt::Key_Left, false, false},
        {"Minus", Qt::Key_Minus, false, false},
        {"Left, right to left", Qt::Key_Left, true, true},
        {"Plus, right to left", Qt::Key_Plus, true, true},
        {"Right, right to left", Qt::Key_Right, true, false},
        {"Minus, right to left", Qt::Key_Minus, true, false},
    };
    for (const auto &row : rows) {
        QTest::addRow("%s when folded", row.name)
            << row.key << row.rightToLeft << false << row.unfolds;
        QTest::addRow("%s when unfolded", row.name)
            << row.key << row.rightToLeft << true << row.unfolds;
    }
    QTest::newRow("Space when folded") << int(Qt::Key_Space) << false << false << true;
    QTest::newRow("Space when unfolded") << int(Qt::Key_Space) << false << true << false;
}

void tst_DisclosureButton::keys()
{
    QFETCH(int, key);
    QFETCH(bool, rightToLeft);
    QFETCH(bool, before);
    QFETCH(bool, after);
    showAndActivate();
    m_window->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    m_button->setChecked(before);
    m_button->setFocus();
    QSignalSpy toggled(m_button, &DisclosureButton::toggled);
    QSignalSpy clicked(m_button, &DisclosureButton::clicked);

    QTest::keyClick(m_window->windowHandle(), Qt::Key(key));

    QCOMPARE(m_button->isChecked(), after);
    QVERIFY(m_button->hasFocus());
    QCOMPARE(toggled.count(), before == after ? 0 : 1);
    QCOMPARE(clicked.count(), before == after ? 0 : 1);
    if (!clicked.isEmpty())
        QCOMPARE(clicked.first().first().toBool(), after);
}

void tst_DisclosureButton::keysWithModifiersAreNotOurs()
{
    QTest::keyClick(m_button, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(m_button, Qt::Key_Right, Qt::AltModifier);
    QVERIFY(!m_button->isChecked());

    QTest::keyClick(m_button, Qt::Key_Plus, Qt::ShiftModifier); // where Plus needs Shift
    QVERIFY(m_button->isChecked());
    QTest::keyClick(m_button, Qt::Key_Minus, Qt::KeypadModifier);
    QVERIFY(!m_button->isChecked());
}

void tst_DisclosureButton::keysOfAnUncheckableButton()
{
    showAndActivate();
    m_button->setCheckable(false);
    m_button->setFocus();
    QSignalSpy clicked(m_button, &DisclosureButton::clicked);

    QTest::keyClick(m_button, Qt::Key_Plus);
    QVERIFY(clicked.isEmpty());
    QTest::keyClick(m_button, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
    QTest::keyClick(m_button, Qt::Key_Left); // moves the focus, as on any button
    QVERIFY(m_other->hasFocus());
    QVERIFY(!m_button->isChecked());
}

void tst_DisclosureButton::enterIsNotOurs()
{
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(m_button, &enter);

    QVERIFY(!enter.isAccepted());
    QVERIFY(!m_button->isChecked());
}

void tst_DisclosureButton::click()
{
    QSignalSpy toggled(m_button, &DisclosureButton::toggled);
    QSignalSpy clicked(m_button, &DisclosureButton::clicked);

    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(m_button->isChecked());
    QTest::mouseClick(m_button, Qt::RightButton);
    QVERIFY(m_button->isChecked());
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(!m_button->isChecked());

    QCOMPARE(toggled.count(), 2);
    QCOMPARE(clicked.count(), 2);
}

void tst_DisclosureButton::setCheckedAnnouncesToggled()
{
    QSignalSpy toggled(m_button, &DisclosureButton::toggled);
    QSignalSpy clicked(m_button, &DisclosureButton::clicked);

    m_button->setChecked(true);
    m_button->setChecked(true);

    QCOMPARE(toggled.count(), 1);
    QVERIFY(clicked.isEmpty());
}

void tst_DisclosureButton::blockedSetCheckedIsSilent()
{
    QSignalSpy toggled(m_button, &DisclosureButton::toggled);

    m_button->blockSignals(true);
    m_button->setChecked(true);
    m_button->blockSignals(false);

    QVERIFY(toggled.isEmpty());
    QVERIFY(
        isNear(inkOf(pictureOf(m_button)).centre, expectedCentre(m_button->size(), QPointF(0, 1))));
}

void tst_DisclosureButton::slotMayDelete_data()
{
    QTest::addColumn<int>("key"); // 0: the mouse

    QTest::newRow("by mouse") << 0;
    QTest::newRow("by Space") << int(Qt::Key_Space);
    QTest::newRow("by Right") << int(Qt::Key_Right);
}

void tst_DisclosureButton::slotMayDelete()
{
    QFETCH(int, key);
    const QPointer<DisclosureButton> alive(m_button);
    connect(m_button, &DisclosureButton::clicked, this, [alive] { delete alive; });

    if (key == 0)
        QTest::mouseClick(m_button, Qt::LeftButton);
    else if (key == Qt::Key_Right)
        QTest::keyPress(m_button, Qt::Key(key));
    else
        QTest::keyClick(m_button, Qt::Key(key));

    QVERIFY(!alive);
}

void tst_DisclosureButton::accessibleCheckBox()
{
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_button);
    QVERIFY(accessible);
    QAccessibleActionInterface *const actions = accessible->actionInterface();
    QVERIFY(actions);
    QSignalSpy toggled(m_button, &DisclosureButton::toggled);

    QCOMPARE(accessible->role(), QAccessible::CheckBox);
    QVERIFY(!accessible->state().checked);
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    actions->doAction(QAccessibleActionInterface::toggleAction());

    QVERIFY(m_button->isChecked());
    QVERIFY(accessible->state().checked);
    QCOMPARE(toggled.count(), 1);
}

void tst_DisclosureButton::accessibleName()
{
    const QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(m_button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Expand"));

    m_button->setAccessibleName(QStringLiteral("Scale"));

    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Scale"));
}

void tst_DisclosureButton::checkBoxSheet_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QPointF>("direction");

    for (const double ratio : {1.0, 2.0}) {
        QTest::addRow("closed, %g", ratio) << false << false << ratio << QPointF(1, 0);
        QTest::addRow("open, %g", ratio) << true << false << ratio << QPointF(0, 1);
        QTest::addRow("closed, right to left, %g", ratio)
            << false << true << ratio << QPointF(-1, 0);
        QTest::addRow("open, right to left, %g", ratio) << true << true << ratio << QPointF(0, 1);
    }
}

void tst_DisclosureButton::checkBoxSheet()
{
    QFETCH(bool, checked);
    QFETCH(bool, rightToLeft);
    QFETCH(double, ratio);
    QFETCH(QPointF, direction);
    QCheckBox box;
    box.setProperty("disclosure", true);
    box.setChecked(checked);
    box.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    box.setStyleSheet(disclosureStyleSheet());
    box.resize(16, 16);
    const double side = 8;
    const double area = std::sqrt(3.0) / 4 * side * side;

    const Ink ink = inkOf(pictureOf(&box, ratio));

    QVERIFY2(std::fabs(ink.amount / area - 1) < 0.06, qPrintable(QString::number(ink.amount)));
    const QPointF expected = expectedCentre(QSize(16, 16), direction);
    QVERIFY2(std::hypot(ink.centre.x() - expected.x(), ink.centre.y() - expected.y()) < 0.6,
             qPrintable(QStringLiteral("%1, %2").arg(ink.centre.x()).arg(ink.centre.y())));
}

void tst_DisclosureButton::checkBoxSheetKeepsThePlaceOfTheText()
{
    QCheckBox box(QStringLiteral("Group"));
    box.setProperty("disclosure", true);
    box.setStyleSheet(disclosureStyleSheet());
    box.resize(box.sizeHint());
    const QRect text(20, 0, box.width() - 20, box.height());
    const QSize folded = box.sizeHint();
    const QImage before = pictureOf(&box).copy(text);

    box.setChecked(true);

    QCOMPARE(box.sizeHint(), folded);
    QCOMPARE(pictureOf(&box).copy(text), before);
    QVERIFY(inkOf(before).amount > 10);
}

void tst_DisclosureButton::checkBoxSheetFollowsThePalette()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, kRed);
    QApplication::setPalette(palette);
    QCheckBox box;
    box.setProperty("disclosure", true);
    box.setStyleSheet(disclosureStyleSheet());
    box.resize(16, 16);

    QCOMPARE(pictureOf(&box).pixelColor(6, 8), kRed);
}

void tst_DisclosureButton::checkBoxSheetDisabled()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, kRed);
    palette.setColor(QPalette::Mid, kGreen);
    QApplication::setPalette(palette);
    QCheckBox box;
    box.setProperty("disclosure", true);
    box.setEnabled(false);
    box.setStyleSheet(disclosureStyleSheet());
    box.resize(16, 16);

    QCOMPARE(pictureOf(&box).pixelColor(6, 8), kGreen);
    box.setChecked(true);
    QCOMPARE(pictureOf(&box).pixelColor(8, 6), kGreen);
}

void tst_DisclosureButton::checkBoxSheetLeavesOthersAlone()
{
    QCheckBox plain(QStringLiteral("plain"));
    plain.resize(plain.sizeHint());
    const QImage before = pictureOf(&plain);
    QCheckBox unset(QStringLiteral("plain"));
    unset.setProperty("disclosure", false);
    unset.resize(plain.size());

    plain.setStyleSheet(disclosureStyleSheet());
    unset.setStyleSheet(disclosureStyleSheet());

    QCOMPARE(pictureOf(&plain), before);
    QCOMPARE(pictureOf(&unset), before);
}

QTEST_MAIN(tst_DisclosureButton)
#include "tst_DisclosureButton.moc"
