#include "property/ControlRow_p.h"

#include "support/FixedHintWidget.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <memory>

using Tessark::PropertyUI::ControlRow;
using Tessark::Testing::FixedHintWidget;

namespace {

/// Notes which of the watched widgets move and change their size, in order.
class Movements : public QObject
{
public:
    void watch(QWidget *widget) { widget->installEventFilter(this); }
    QStringList takeAll() { return std::exchange(m_movements, {}); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            m_movements.append(watched->objectName());
        return false;
    }

private:
    QStringList m_movements;
};

/// The same controls in a row of either kind.
struct Row
{
    explicit Row(bool isControlRow)
    {
        if (isControlRow) {
            layout = new ControlRow(&widget);
        } else {
            layout = new QHBoxLayout(&widget);
            layout->setContentsMargins(0, 0, 0, 0);
        }
    }

    void add(QWidget *control)
    {
        control->setObjectName(QString::number(controls.size()));
        movements.watch(control);
        controls.append(control);
        layout->addWidget(control);
    }

    QVector<QRect> places() const
    {
        QVector<QRect> result;
        for (const QWidget *control : controls)
            result.append(control->geometry());
        return result;
    }

    QWidget widget;
    QHBoxLayout *layout = nullptr;
    QVector<QWidget *> controls;
    Movements movements;
};

/// A ControlRow, and beside it what it has to be like.
class Pair
{
public:
    template <typename Change>
    void change(Change makeChange)
    {
        makeChange(m_row);
        makeChange(m_model);
    }

    void addSlider()
    {
        change([](Row &row) { row.add(new QSlider(Qt::Horizontal)); });
    }
    void addSpinBox(int width)
    {
        change([width](Row &row) {
            row.add(new QSpinBox);
            row.controls.last()->setFixedWidth(width);
        });
    }

    /// Whether all is the same in both, after what was posted too.
    bool isSame()
    {
        // Every other time the rows have not been asked for hints when they place anew.
        m_asksFirst = !m_asksFirst;
        if (m_asksFirst && !wantSame())
            return false;
        QApplication::sendPostedEvents();
        return m_row.places() == m_model.places() && wantSame()
               && m_row.movements.takeAll() == m_model.movements.takeAll();
    }

    Row &row() { return m_row; }

private:
    bool wantSame() const
    {
        return m_row.widget.sizeHint() == m_model.widget.sizeHint()
               && m_row.widget.minimumSizeHint() == m_model.widget.minimumSizeHint();
    }

    Row m_row{true};
    Row m_model{false};
    bool m_asksFirst = false;
};

} // namespace

/// A row of controls places them as a QHBoxLayout without margins does.
class tst_ControlRow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesSliderAndNumber_data();
    void placesSliderAndNumber();
    void newHintsAreUsed();
    void widgetIsToldOfNewHintsAtOnce();
    void isLikeAnyOtherRow();
};

void tst_ControlRow::placesSliderAndNumber_data()
{
    QTest::addColumn<bool>("mirrored");

    QTest::newRow("from the left") << false;
    QTest::newRow("from the right") << true;
}

void tst_ControlRow::placesSliderAndNumber()
{
    QFETCH(bool, mirrored);
    Pair pair;
    pair.addSlider();
    pair.addSpinBox(70);
    pair.change([mirrored](Row &row) {
        row.widget.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
        row.widget.show();
    });

    for (const int width : {300, 400, 399, 20, 100, 100, 2000, 300}) {
        pair.change([width](Row &row) { row.widget.resize(width, 30); });
        QVERIFY2(pair.isSame(), qPrintable(QString::number(width)));
    }
    QCOMPARE(pair.row().controls.last()->width(), 70);
    QCOMPARE(pair.row().controls.first()->width(), 300 - 70 - pair.row().layout->spacing());
    QCOMPARE(pair.row().controls.first()->x() == 0, !mirrored);
}

void tst_ControlRow::newHintsAreUsed()
{
    Pair pair;
    pair.addSlider();
    pair.addSpinBox(70);
    pair.change([](Row &row) {
        row.widget.resize(300, 30);
        row.widget.show();
    });
    QVERIFY(pair.isSame());

    pair.change([](Row &row) { row.controls.last()->setFixedWidth(90); });

    QVERIFY(pair.isSame());
    QCOMPARE(pair.row().controls.last()->width(), 90);
    QCOMPARE(pair.row().controls.last()->geometry().right(), 299);
}

void tst_ControlRow::widgetIsToldOfNewHintsAtOnce()
{
    QWidget window;
    auto *const outer = new QHBoxLayout(&window);
    auto *const row = new QWidget;
    auto *const spinBox = new QSpinBox;
    (new ControlRow(row))->addWidget(spinBox);
    outer->addItem(new QWidgetItemV2(row)); // keeps the hints until it is told
    row->setParent(&window);
    spinBox->setFixedWidth(70);
    const QSize before = outer->itemAt(0)->sizeHint();

    spinBox->setFixedWidth(90);

    QCOMPARE(outer->itemAt(0)->sizeHint(), before + QSize(20, 0));
}

void tst_ControlRow::isLikeAnyOtherRow()
{
    QRandomGenerator random(1);
    const auto below = [&random](int end) { return random.bounded(end); };
    constexpr int kPolicies = 6;
    static const QSizePolicy::Policy s_policies[kPolicies] = {
        QSizePolicy::Fixed,     QSizePolicy::Minimum,          QSizePolicy::Maximum,
        QSizePolicy::Preferred, QSizePolicy::MinimumExpanding, QSizePolicy::Expanding};

    for (int round = 0; round < 300; ++round) {
        Pair pair;
        const int controls = 1 + below(3);
        for (int i = 0; i < controls; ++i) {
            const QSize hint(10 + below(80), 10 + below(20));
            const QSizePolicy::Policy policy = s_policies[below(kPolicies)];
            pair.change([&](Row &row) {
                row.add(new FixedHintWidget(hint));
                row.controls.last()->setSizePolicy(policy, QSizePolicy::Preferred);
            });
        }
        pair.change([](Row &row) { row.widget.show(); });
        for (int step = 0; step < 20; ++step) {
            const int control = below(controls);
            const int amount = below(200);
            const int what = below(12);
            pair.change([&](Row &row) {
                QWidget *const widget = row.controls.at(control);
                switch (what) {
                case 0:
                    widget->setVisible(amount % 2 == 0);
                    break;
                case 1:
                    widget->setMinimumWidth(amount / 2);
                    break;
                case 2:
                    widget->setMaximumWidth(amount % 3 == 0 ? QWIDGETSIZE_MAX : 20 + amount);
                    break;
                case 3:
                    row.widget.setLayoutDirection(amount % 2 == 0 ? Qt::LeftToRight
                                                                  : Qt::RightToLeft);
                    break;
                case 4:
                    row.layout->setSpacing(amount % 20 - 1);
                    break;
                case 5:
                    row.layout->setStretch(control, amount % 3);
                    break;
                case 6:
                    row.layout->setAlignment(widget,
                                             amount % 2 == 0 ? Qt::Alignment() : Qt::AlignRight);
                    break;
                case 7:
                    row.layout->setContentsMargins(amount % 2, 0, 0, amount % 3);
                    break;
                default:
                    row.widget.resize(amount * 2, 20 + amount / 10);
                }
            });
            QVERIFY2(
                pair.isSame(),
                qPrintable(
                    QStringLiteral("round %1, step %2, change %3").arg(round).arg(step).arg(what)));
        }
    }
}

QTEST_MAIN(tst_ControlRow)
#include "tst_ControlRow.moc"
