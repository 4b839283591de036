#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

/// Labels that are wider than their column in a view.
class tst_LabelElider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void longLabelEndsInAnEllipsis_data();
    void longLabelEndsInAnEllipsis();
    void labelThatFitsIsAsItWas();
    void eachLineEndsInAnEllipsis();
    void disabledLabelIsDrawnSo();
    void toolTipTellsTheWholeText_data();
    void toolTipTellsTheWholeText();
    void labelThatFitsHasItsOwnToolTip();
    void otherLabelsAreLeftAlone_data();
    void otherLabelsAreLeftAlone();

private:
    void show(const QString &text, int width);

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PropertyPanelView> m_view;
    QLabel *m_label = nullptr;
};

namespace {

constexpr int kNarrow = 60;
const QString kText = QStringLiteral("A label that is too long");
const QString kTextInArabic = QString::fromUtf8("تسمية أطول من العمود بكثير");

/// Without what is behind it.
QImage picture(QLabel *label)
{
    QImage image(label->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    label->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// What a label of the same size and kind looks like with the text.
QImage pictureOf(const QLabel &like, const QString &text)
{
    QLabel label(text);
    label.setAlignment(like.alignment());
    label.setEnabled(like.isEnabled());
    label.setFont(like.font());
    label.resize(like.size());
    return picture(&label);
}

QString shownToolTip(QWidget *widget)
{
    QToolTip::hideText();
    const QPoint middle = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

} // namespace

void tst_LabelElider::init()
{
    m_list = std::make_unique<PropertyList>();
    m_list->string(QStringLiteral("row"), QString());
    m_store = std::make_unique<PropertyStore>();
    m_view = std::make_unique<PropertyPanelView>();
}

void tst_LabelElider::cleanup()
{
    QToolTip::hideText();
    m_view.reset();
}

void tst_LabelElider::show(const QString &text, int width)
{
    m_list->properties().constFirst()->label = text;
    m_store->reset(*m_list);
    m_view->setProperties(*m_list, m_store.get());
    m_view->setLabelWidth(width);
    m_view->resize(400, 200);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_label = m_view->panel()->findChild<QLabel *>();
    QTRY_VERIFY(width < 0 || m_label->width() <= width);
}

void tst_LabelElider::longLabelEndsInAnEllipsis_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("left to right") << kText;
    QTest::newRow("right to left") << kTextInArabic;
}

void tst_LabelElider::longLabelEndsInAnEllipsis()
{
    QFETCH(QString, text);
    show(text, kNarrow);
    const QString whole = text + QLatin1Char(':');
    const QString elided = m_label->fontMetrics().elidedText(whole, Qt::ElideRight, kNarrow);
    QVERIFY(elided.endsWith(QChar(0x2026)));

    QCOMPARE(m_label->text(), whole);
    QCOMPARE(picture(m_label), pictureOf(*m_label, elided));
    QVERIFY(picture(m_label) != pictureOf(*m_label, whole));
}

void tst_LabelElider::labelThatFitsIsAsItWas()
{
    show(kText, -1);

    QCOMPARE(picture(m_label), pictureOf(*m_label, kText + QLatin1Char(':')));
}

void tst_LabelElider::eachLineEndsInAnEllipsis()
{
    show(QStringLiteral("A first line that is long\nB"), kNarrow);
    const QFontMetrics metrics = m_label->fontMetrics();
    const QString first =
        metrics.elidedText(QStringLiteral("A first line that is long"), Qt::ElideRight, kNarrow);

    QCOMPARE(picture(m_label), pictureOf(*m_label, first + QStringLiteral("\nB:")));
}

void tst_LabelElider::disabledLabelIsDrawnSo()
{
    show(kText, kNarrow);
    const QImage before = picture(m_label);

    m_label->setEnabled(false);

    const QString elided =
        m_label->fontMetrics().elidedText(m_label->text(), Qt::ElideRight, kNarrow);
    QCOMPARE(picture(m_label), pictureOf(*m_label, elided));
    QVERIFY(picture(m_label) != before);
}

void tst_LabelElider::toolTipTellsTheWholeText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("help");
    QTest::addColumn<QStringList>("parts");

    const QString markup = QStringLiteral("A <b>label</b> of 3 < 4");
    QTest::newRow("no help") << kText << QString() << QStringList{kText};
    QTest::newRow("help") << kText << QStringLiteral("In decibels.")
                          << QStringList{kText, QStringLiteral("In decibels.")};
    QTest::newRow("what looks like markup")
        << markup << QString() << QStringList{markup.toHtmlEscaped()};
}

void tst_LabelElider::toolTipTellsTheWholeText()
{
    QFETCH(QString, text);
    QFETCH(QString, help);
    QFETCH(QStringList, parts);
    m_list->properties().constFirst()->setHint(kHostHintHelp, help);
    m_view->setTextsAsWritten(true);
    show(text, kNarrow);
    const QString own = m_label->toolTip();

    const QString told = shownToolTip(m_label);

    int from = 0;
    for (const QString &part : std::as_const(parts)) {
        from = int(told.indexOf(part, from));
        QVERIFY2(from >= 0, qPrintable(told));
    }
    QCOMPARE(m_label->toolTip(), own);
}

void tst_LabelElider::labelThatFitsHasItsOwnToolTip()
{
    show(kText, -1);
    QCOMPARE(shownToolTip(m_label), QString());

    m_label->setToolTip(QStringLiteral("own"));
    QCOMPARE(shownToolTip(m_label), QStringLiteral("own"));
}

void tst_LabelElider::otherLabelsAreLeftAlone_data()
{
    QTest::addColumn<Qt::TextFormat>("format");
    QTest::addColumn<bool>("wraps");
    QTest::addColumn<bool>("isSelectable");

    QTest::newRow("markup") << Qt::RichText << false << false;
    QTest::newRow("one that wraps") << Qt::PlainText << true << false;
    QTest::newRow("one that can be selected") << Qt::PlainText << false << true;
}

void tst_LabelElider::otherLabelsAreLeftAlone()
{
    QFETCH(Qt::TextFormat, format);
    QFETCH(bool, wraps);
    QFETCH(bool, isSelectable);
    show(kText, kNarrow);
    QLabel like(m_label->text());
    for (QLabel *label : {m_label, &like}) {
        label->setTextFormat(format);
        label->setWordWrap(wraps);
        if (isSelectable)
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    like.setAlignment(m_label->alignment());
    like.resize(m_label->size());

    QCOMPARE(picture(m_label), picture(&like));
    QCOMPARE(shownToolTip(m_label), QString());
}

QTEST_MAIN(tst_LabelElider)
#include "tst_LabelElider.moc"
