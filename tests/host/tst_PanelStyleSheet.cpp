#include <host/PanelLook.h>
#include <host/PanelStyleSheet.h>

#include <core/DisclosureButton.h>

#include <support/Contrast.h>

#include <QApplication>
#include <QCheckBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Tessark::PropertyHost;
using Tessark::UI::DisclosureButton;
using TestSupport::contrast;

Q_DECLARE_METATYPE(PanelLook)

namespace {

bool isLike(const QColor &one, const QColor &other)
{
    return contrast(one, other) < 1.3;
}

int countLike(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += isLike(image.pixelColor(x, y), color) ? 1 : 0;
    }
    return count;
}

QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

} // namespace

class tst_PanelStyleSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void trianglesAreDrawn_data();
    void trianglesAreDrawn();
    void trianglesPointInReadingDirection();
    void groupTextIsBold();
    void roundButtonsAreRound();
    void disabledIsDashed();
    void disablingKeepsTheHeight();
    void colorsAreThoseOfThePalette_data() { trianglesAreDrawn_data(); }
    void colorsAreThoseOfThePalette();
    void sizesFollowTheFont();

private:
    void makeWindow(PanelLook look);

    std::unique_ptr<QWidget> m_window;
    QPalette m_palette;
};

void tst_PanelStyleSheet::init()
{
    m_window.reset();
}

void tst_PanelStyleSheet::makeWindow(PanelLook look)
{
    m_palette = panelPalette(look);
    m_window = std::make_unique<QWidget>();
    m_window->setPalette(m_palette);
    m_window->setStyleSheet(panelStyleSheet(m_palette));
    new QVBoxLayout(m_window.get());
}

void tst_PanelStyleSheet::trianglesAreDrawn_data()
{
    QTest::addColumn<PanelLook>("look");

    QTest::newRow("system") << PanelLook::System;
    QTest::newRow("light") << PanelLook::Light;
    QTest::newRow("dark") << PanelLook::Dark;
    QTest::newRow("high contrast") << PanelLook::HighContrast;
}

void tst_PanelStyleSheet::trianglesAreDrawn()
{
    QFETCH(PanelLook, look);
    makeWindow(look);
    auto *const box = new QCheckBox;
    box->setProperty("disclosure", true);
    m_window->layout()->addWidget(box);
    m_window->show();
    const QColor text = m_palette.color(QPalette::Active, QPalette::WindowText);

    const int closed = countLike(picture(*box), text);
    box->setChecked(true);
    const int open = countLike(picture(*box), text);
    box->setEnabled(false);

    QVERIFY2(closed > 10 && closed < 60, qPrintable(QString::number(closed)));
    QVERIFY2(std::abs(closed - open) < 10, qPrintable(QString::number(open)));
    QVERIFY(countLike(picture(*box), m_palette.color(QPalette::Disabled, QPalette::WindowText))
            > 10);
}

void tst_PanelStyleSheet::trianglesPointInReadingDirection()
{
    makeWindow(PanelLook::Light);
    auto *const box = new QCheckBox;
    box->setProperty("disclosure", true);
    m_window->layout()->addWidget(box);
    m_window->show();
    box->resize(box->sizeHint());
    const QImage leftToRight = picture(*box);

    m_window->setLayoutDirection(Qt::RightToLeft);
    m_window->setStyleSheet(panelStyleSheet(m_palette)); // sheets look at properties once
    box->resize(box->sizeHint());

    QVERIFY(picture(*box) != leftToRight);
    QVERIFY(std::abs(countLike(picture(*box), Qt::black) - countLike(leftToRight, Qt::black)) < 5);
}

void tst_PanelStyleSheet::groupTextIsBold()
{
    makeWindow(PanelLook::Dark);
    auto *const group = new QCheckBox(QStringLiteral("Group"));
    auto *const plain = new QCheckBox(QStringLiteral("Plain"));
    group->setProperty("disclosure", true);
    m_window->layout()->addWidget(group);
    m_window->layout()->addWidget(plain);
    m_window->show();

    QVERIFY(group->font().bold());
    QVERIFY(!plain->font().bold());
}

void tst_PanelStyleSheet::roundButtonsAreRound()
{
    for (const bool isDisclosure : {true, false}) {
        makeWindow(PanelLook::Light);
        QAbstractButton *const button =
            isDisclosure ? static_cast<QAbstractButton *>(new DisclosureButton) : new QPushButton;
        button->setProperty("group", QStringLiteral("round"));
        m_window->layout()->addWidget(button);
        m_window->show();
        button->resize(button->sizeHint());

        const QImage image = picture(*m_window).copy(button->geometry());

        QCOMPARE(image.width(), image.height());
        const QColor line = m_palette.color(QPalette::Mid);
        QVERIFY(contrast(image.pixelColor(image.width() / 2, 0), line) < 1.3);
        QVERIFY(contrast(image.pixelColor(0, image.height() / 2), line) < 1.3);
        QCOMPARE(image.pixelColor(1, 1), m_palette.color(QPalette::Window));
    }
}

void tst_PanelStyleSheet::disabledIsDashed()
{
    makeWindow(PanelLook::Light);
    auto *const edit = new QLineEdit;
    m_window->layout()->addWidget(edit);
    m_window->show();

    edit->setEnabled(false);

    const QImage image = picture(*edit);
    const QColor background = m_palette.color(QPalette::Disabled, QPalette::Base);
    int changes = 0;
    for (int x = 5; x < image.width() - 4; ++x)
        changes += isLike(image.pixelColor(x, 0), background)
                           != isLike(image.pixelColor(x - 1, 0), background)
                       ? 1
                       : 0;
    QVERIFY2(changes > 10, qPrintable(QString::number(changes)));
}

void tst_PanelStyleSheet::disablingKeepsTheHeight()
{
    makeWindow(PanelLook::Light);
    QWidget *const parts[] = {new QLineEdit, new QPushButton(QStringLiteral("Push"))};
    for (QWidget *part : parts)
        m_window->layout()->addWidget(part);
    m_window->show();

    for (QWidget *part : parts) {
        const int height = part->sizeHint().height();
        part->setEnabled(false);
        QCOMPARE(part->sizeHint().height(), height);
    }
}

void tst_PanelStyleSheet::colorsAreThoseOfThePalette()
{
    QFETCH(PanelLook, look);
    makeWindow(look);
    const std::pair<QWidget *, std::pair<QPalette::ColorRole, QPalette::ColorRole>> parts[] = {
        {new QCheckBox, {QPalette::WindowText, QPalette::Window}},
        {new QLineEdit, {QPalette::Text, QPalette::Base}},
        {new QPushButton, {QPalette::ButtonText, QPalette::Button}},
    };
    for (const auto &part : parts)
        m_window->layout()->addWidget(part.first);
    m_window->show();

    for (const auto group : {QPalette::Active, QPalette::Disabled}) {
        for (const auto &[widget, roles] : parts) {
            widget->setEnabled(group == QPalette::Active);
            for (const auto role : {roles.first, roles.second})
                QCOMPARE(widget->palette().color(group, role), m_palette.color(group, role));
        }
    }
}

void tst_PanelStyleSheet::sizesFollowTheFont()
{
    const QFont before = QApplication::font();
    const QString small = panelStyleSheet(QApplication::palette());
    QFont large = before;
    large.setPixelSize(60);

    QApplication::setFont(large);

    QVERIFY(panelStyleSheet(QApplication::palette()) != small);
    QApplication::setFont(before);
    QCOMPARE(panelStyleSheet(QApplication::palette()), small);
}

QTEST_MAIN(tst_PanelStyleSheet)
#include "tst_PanelStyleSheet.moc"
