#include "property/editors/FloatPropertyEditor.h"
#include "property/editors/IntegerPropertyEditor.h"

#include "support/RangedEditor.h"

#include <QDoubleSpinBox>
#include <QPaintEvent>
#include <QSpinBox>
#include <QTest>

#include <utility>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kMinimum = 0;
constexpr int kMaximum = 100;
constexpr int kFrameWidth = 4; // pixels, more than that of any style's spin box

/// Collects what of a widget is painted.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget *widget) { widget->installEventFilter(this); }

    /// What was painted since the last call, for posted events too.
    QRegion take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_region, QRegion());
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QRegion m_region;
};

/// What is painted of an editor's spin box, whose texts and arrows are told apart by two points.
struct Painted
{
    bool text = false;
    bool arrows = false;
};

/// What is painted when the editor shows after in place of before.
template <typename Editor, typename SpinBox>
Painted paintedOf(const QString &type, int before, int after)
{
    RangedEditor<Editor, SpinBox> subject(type, kMinimum, kMaximum);
    subject.build();
    subject.editor->setValue(before);
    subject.show();
    if (!QTest::qWaitForWindowExposed(subject.widget.get()))
        return {};
    PaintedRegion region(subject.spinBox);
    region.take();

    subject.editor->setValue(after);

    const QRegion painted = region.take();
    const QRect field = subject.spinBox->rect();
    const QPoint arrow(field.right() - kFrameWidth, field.center().y());
    return {painted.contains(field.center()), painted.contains(arrow)};
}

} // namespace

/// A number field is painted no further than it changes, since each update of a widget makes Qt look
/// at all rows of the panel.
class tst_NumberPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrowsArePaintedAtTheEndsAlone_data();
    void arrowsArePaintedAtTheEndsAlone();
};

void tst_NumberPainting::arrowsArePaintedAtTheEndsAlone_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<bool>("arrowsChange"); // one of them works at both values, or at one alone

    QTest::newRow("between") << 40 << 60 << false;
    QTest::newRow("to the minimum") << 40 << kMinimum << true;
    QTest::newRow("from the minimum") << kMinimum << 40 << true;
    QTest::newRow("to the maximum") << 40 << kMaximum << true;
    QTest::newRow("from the maximum") << kMaximum << 40 << true;
    QTest::newRow("from end to end") << kMinimum << kMaximum << true;
}

void tst_NumberPainting::arrowsArePaintedAtTheEndsAlone()
{
    QFETCH(const int, before);
    QFETCH(const int, after);
    QFETCH(const bool, arrowsChange);

    const Painted integer =
        paintedOf<IntegerPropertyEditor, QSpinBox>(kPropertyTypeInteger, before, after);
    const Painted number =
        paintedOf<FloatPropertyEditor, QDoubleSpinBox>(kPropertyTypeFloat, before, after);

    QVERIFY(integer.text);
    QVERIFY(number.text);
    QCOMPARE(integer.arrows, arrowsChange);
    QCOMPARE(number.arrows, arrowsChange);
}

QTEST_MAIN(tst_NumberPainting)
#include "tst_NumberPainting.moc"
