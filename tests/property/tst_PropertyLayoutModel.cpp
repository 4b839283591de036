#include "support/FixedHintItem.h"
#include "support/FixedHintWidget.h"
#include "support/LayoutModel.h"

#include <property/PropertyLayout.h>

#include <QHBoxLayout>
#include <QRandomGenerator>
#include <QStringList>
#include <QTest>

#include <memory>
#include <vector>

using namespace Tessark::PropertyUI;
using namespace Tessark::Testing;

namespace {

/// How likely, in percent, the items of a random list have a trait.
struct Profile
{
    int hidden = 0;
    int marker = 0;
    int newRow = 50;
    int fullWidth = 0;
    int expanding = 40;
    int bounded = 0;
    int loose = 0;
    int nested = 0;
};

class RandomSource
{
public:
    explicit RandomSource(quint32 seed)
        : m_generator(seed)
    {
    }

    int between(int lowest, int highest) { return m_generator.bounded(lowest, highest + 1); }
    bool chance(int percent) { return between(1, 100) <= percent; }

private:
    QRandomGenerator m_generator;
};

/// Keeps the rectangle the layout gave it, which a widget bends to its own limits.
class RecordingItem final : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    void setGeometry(const QRect &rect) override
    {
        m_given = rect;
        QWidgetItem::setGeometry(rect);
    }

    QRect geometry() const override { return m_given; }

private:
    QRect m_given;
};

QSize toSize(const LayoutModelSize &size)
{
    return QSize(size.width, size.height);
}

QString toText(const QRect &rect)
{
    return QStringLiteral("(%1, %2, %3 x %4)")
        .arg(QString::number(rect.x()), QString::number(rect.y()), QString::number(rect.width()),
             QString::number(rect.height()));
}

QString toText(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(QString::number(size.width()),
                                         QString::number(size.height()));
}

/// One random list in the layout and in the model, and what was done with both.
class Comparison
{
public:
    Comparison(quint32 seed, const Profile &profile);

    /// Builds the list and does a few random things with it; false as soon as the two differ.
    bool run();

    /// The list, the steps taken and the first difference.
    QString report() const;

private:
    void addRandomItem();
    void addWidget(int options, LayoutModelItem &modelItem);
    void addLoose(int options);
    void addNested(int options);
    std::unique_ptr<FixedHintWidget> randomWidget();
    void markRandomly(QWidget *widget, LayoutModelItem &modelItem);
    int randomOptions();

    void step();
    void place();
    void measure();
    void askHints();
    void changeNumbers();
    void toggleWidget();
    void toggleGroup();
    void changeHint();
    void takeItem();

    QWidget *randomListedWidget();
    QRect randomRect();
    QRect actualRect(int index) const;
    QRect expectedRect(int index) const;
    void copyItemsToModel();
    void compareSizes(const QSize &actual, const LayoutModelSize &expected);
    void compareMembers(const std::vector<bool> &hidden);
    void fail(const QString &message);
    int count() const { return static_cast<int>(m_model.items.size()); }
    LayoutModelItem &modelItem(int index) { return m_model.items[static_cast<std::size_t>(index)]; }
    QString describe(int index) const;

    quint32 m_seed = 0;
    Profile m_profile;
    RandomSource m_random;
    QWidget m_host;
    PropertyLayout *m_layout = nullptr; // owned by m_host
    LayoutModel m_model;
    QStringList m_steps;
    QString m_failure;
};

Comparison::Comparison(quint32 seed, const Profile &profile)
    : m_seed(seed)
    , m_profile(profile)
    , m_random(seed)
{
    const int spacing = m_random.chance(70) ? 4 : m_random.between(-3, 20);
    m_layout = new PropertyLayout(&m_host, m_random.between(0, 30), spacing);
    m_model.verticalSpacing = spacing;
    m_model.horizontalSpacing = spacing;
    m_steps += QStringLiteral("spacing %1").arg(spacing);
}

bool Comparison::run()
{
    const int items = m_random.between(0, 14);
    for (int i = 0; i < items; ++i)
        addRandomItem();

    const int steps = m_random.between(3, 12);
    for (int i = 0; i < steps && m_failure.isEmpty(); ++i)
        step();
    if (m_failure.isEmpty())
        place();
    return m_failure.isEmpty();
}

QString Comparison::report() const
{
    QStringList lines{QStringLiteral("seed %1").arg(m_seed)};
    for (int i = 0; i < count(); ++i)
        lines += describe(i);
    lines += QStringLiteral("steps: ") + m_steps.join(QStringLiteral("; "));
    lines += m_failure;
    return lines.join(QLatin1Char('\n'));
}

int Comparison::randomOptions()
{
    int options = 0;
    if (m_random.chance(m_profile.newRow))
        options |= PropertyLayout::NewRow;
    if (m_random.chance(m_profile.fullWidth))
        options |= PropertyLayout::FullWidth;
    if (m_random.chance(m_profile.expanding))
        options |= PropertyLayout::ExpandHorizontal;
    if (m_random.chance(m_profile.expanding / 2))
        options |= PropertyLayout::ExpandVertical;
    if (m_random.chance(m_profile.marker / 5))
        options |= m_random.chance(50) ? PropertyLayout::BeginGroup : PropertyLayout::EndGroup;
    return options;
}

void Comparison::addRandomItem()
{
    const int options = randomOptions();
    LayoutModelItem item;
    item.fullWidth = (options & PropertyLayout::FullWidth) != 0;
    item.newRow = item.fullWidth || (options & PropertyLayout::NewRow);
    item.expandsAcross =
        (options & PropertyLayout::ExpandHorizontal) && !(options & PropertyLayout::NewRow);
    item.expandsDown = (options & PropertyLayout::ExpandVertical) != 0;
    item.beginsGroup = (options & PropertyLayout::BeginGroup) != 0;
    item.endsGroup = (options & PropertyLayout::EndGroup) != 0;

    if (m_random.chance(m_profile.loose))
        addLoose(options);
    else if (m_random.chance(m_profile.nested))
        addNested(options);
    else
        addWidget(options, item);
    m_model.append(item);
}

void Comparison::addWidget(int options, LayoutModelItem &item)
{
    FixedHintWidget *const widget = randomWidget().release();
    widget->setParent(&m_host);
    if (!item.beginsGroup && !item.endsGroup)
        markRandomly(widget, item);
    item.expandsAcross |= widget->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    item.expandsDown |= widget->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;

    const PropertyLayout::LayoutOptions flags(options);
    if (m_random.chance(30))
        m_layout->addWidget(widget, flags);
    else
        m_layout->addItem(new RecordingItem(widget), flags, Qt::AlignCenter);
    if (m_random.chance(m_profile.hidden))
        widget->hide();
}

void Comparison::addLoose(int options)
{
    const QSize hint(m_random.between(-1, 90), m_random.between(-1, 60));
    const QSize minimum(m_random.between(0, 100), m_random.between(0, 70));
    const QSize maximum(m_random.between(0, 200), m_random.between(0, 100));
    auto *const item = new FixedHintItem(hint, minimum, maximum);
    item->setEmpty(m_random.chance(15));
    m_layout->addItem(item, PropertyLayout::LayoutOptions(options), {});
}

void Comparison::addNested(int options)
{
    auto *const nested = new QHBoxLayout;
    for (int i = m_random.between(0, 2); i > 0; --i) {
        QWidget *const widget = randomWidget().release();
        nested->addWidget(widget);
        if (m_random.chance(m_profile.hidden))
            widget->hide();
    }
    m_layout->addLayout(nested, PropertyLayout::LayoutOptions(options));
}

std::unique_ptr<FixedHintWidget> Comparison::randomWidget()
{
    static constexpr QSizePolicy::Policy kPolicies[] = {
        QSizePolicy::Fixed,   QSizePolicy::Minimum,          QSizePolicy::Maximum,
        QSizePolicy::Ignored, QSizePolicy::MinimumExpanding, QSizePolicy::Expanding};

    auto widget =
        std::make_unique<FixedHintWidget>(QSize(m_random.between(0, 90), m_random.between(0, 60)));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    if (m_random.chance(60))
        policy.setHorizontalPolicy(kPolicies[m_random.between(0, 5)]);
    if (m_random.chance(40))
        policy.setVerticalPolicy(kPolicies[m_random.between(0, 5)]);
    policy.setRetainSizeWhenHidden(m_random.chance(5));
    widget->setSizePolicy(policy);
    if (m_random.chance(30))
        widget->setMinimumHint(QSize(m_random.between(0, 40), m_random.between(0, 40)));
    if (m_random.chance(m_profile.bounded))
        widget->setMinimumSize(m_random.between(0, 60), m_random.between(0, 60));
    if (m_random.chance(m_profile.bounded))
        widget->setMaximumSize(m_random.between(0, 150), m_random.between(0, 90));
    return widget;
}

void Comparison::markRandomly(QWidget *widget, LayoutModelItem &item)
{
    const bool begins = m_random.chance(m_profile.marker);
    const bool ends = m_random.chance(m_profile.marker);
    if (begins || m_random.chance(5))
        widget->setProperty("beginGroup", begins);
    if (ends || m_random.chance(5))
        widget->setProperty("endGroup", ends);
    item.beginsGroup = begins;
    item.endsGroup = ends && !begins;
}

void Comparison::step()
{
    using Step = void (Comparison::*)();
    static constexpr Step kSteps[] = {
        &Comparison::place,         &Comparison::place,        &Comparison::measure,
        &Comparison::askHints,      &Comparison::askHints,     &Comparison::changeNumbers,
        &Comparison::toggleWidget,  &Comparison::toggleWidget, &Comparison::toggleGroup,
        &Comparison::toggleGroup,   &Comparison::changeHint,   &Comparison::takeItem,
        &Comparison::addRandomItem,
    };
    (this->*kSteps[m_random.between(0, static_cast<int>(std::size(kSteps)) - 1)])();
}

void Comparison::place()
{
    const QRect rect = randomRect();
    const bool directly = m_random.chance(25);
    m_steps +=
        (directly ? QStringLiteral("doLayout ") : QStringLiteral("setGeometry ")) + toText(rect);
    copyItemsToModel();
    std::vector<QRect> before;
    for (int i = 0; i < count(); ++i)
        before.push_back(actualRect(i));

    const LayoutModelSize wanted = m_model.layOut(rect.width(), rect.height(), true);
    if (directly)
        compareSizes(m_layout->doLayout(rect, false, PropertyLayout::SizeType::Minimum), wanted);
    else
        m_layout->setGeometry(rect);

    for (int i = 0; i < count() && m_failure.isEmpty(); ++i) {
        const QRect actual = actualRect(i); // first: expectedRect() moves the widget
        const QRect expected =
            modelItem(i).placed ? expectedRect(i) : before[static_cast<std::size_t>(i)];
        if (actual != expected)
            fail(QStringLiteral("item %1 is at %2 instead of %3")
                     .arg(QString::number(i), toText(actual), toText(expected)));
    }
}

void Comparison::measure()
{
    const QRect rect = randomRect();
    m_steps += QStringLiteral("measure ") + toText(rect);
    copyItemsToModel();

    const QSize wanted = m_layout->doLayout(rect, true, PropertyLayout::SizeType::Preferred);

    compareSizes(wanted, m_model.layOut(rect.width(), rect.height(), false));
}

void Comparison::askHints()
{
    m_steps += QStringLiteral("hints");
    copyItemsToModel();

    compareSizes(m_layout->sizeHint(), m_model.sizeHint());
    if (m_random.chance(50))
        compareSizes(m_layout->minimumSize(), m_model.minimumSize());
}

void Comparison::changeNumbers()
{
    m_steps += QStringLiteral("numbers");
    switch (m_random.between(0, 2)) {
    case 0:
        m_model.verticalSpacing = m_random.between(-2, 15);
        m_layout->setVerticalSpacing(m_model.verticalSpacing);
        break;
    case 1:
        m_model.horizontalSpacing = m_random.between(-2, 15);
        m_layout->setHorizontalSpacing(m_model.horizontalSpacing);
        break;
    default:
        m_model.left = m_random.between(0, 30);
        m_model.top = m_random.between(0, 30);
        m_model.right = m_random.between(0, 30);
        m_model.bottom = m_random.between(0, 30);
        m_layout->setContentsMargins(m_model.left, m_model.top, m_model.right, m_model.bottom);
    }
}

void Comparison::toggleWidget()
{
    if (QWidget *const widget = randomListedWidget()) {
        m_steps += QStringLiteral("toggle %1").arg(m_layout->indexOf(widget));
        widget->setVisible(widget->isHidden());
    }
}

void Comparison::toggleGroup()
{
    QWidget *const widget = randomListedWidget();
    const int begin = widget ? m_layout->indexOf(widget) : -1;
    const bool visible = m_random.chance(50);
    m_steps += QStringLiteral("group %1 %2").arg(QString::number(begin), QString::number(visible));
    std::vector<bool> hidden;
    for (int i = 0; i < count(); ++i) {
        QWidget *const listed = m_layout->itemAt(i)->widget();
        hidden.push_back(listed && listed->isHidden());
    }
    if (begin >= 0) {
        for (const int member : m_model.groupMembers(begin))
            hidden[static_cast<std::size_t>(member)] = !visible;
    }

    m_layout->setGroupVisible(widget, visible);

    compareMembers(hidden);
}

void Comparison::changeHint()
{
    if (auto *const widget = dynamic_cast<FixedHintWidget *>(randomListedWidget())) {
        m_steps += QStringLiteral("hint %1").arg(m_layout->indexOf(widget));
        widget->setHint(QSize(m_random.between(0, 120), m_random.between(0, 60)));
    }
}

void Comparison::takeItem()
{
    const int index = m_random.between(-1, count());
    m_steps += QStringLiteral("take %1").arg(index);
    const std::unique_ptr<QLayoutItem> taken(m_layout->takeAt(index));
    const bool inRange = index >= 0 && index < count();
    if ((taken != nullptr) != inRange)
        fail(QStringLiteral("takeAt(%1) disagrees about the range").arg(index));
    if (inRange)
        m_model.items.erase(m_model.items.begin() + index);
    if (m_layout->count() != count())
        fail(QStringLiteral("wrong count"));
}

QWidget *Comparison::randomListedWidget()
{
    if (count() == 0)
        return nullptr;
    return m_layout->itemAt(m_random.between(0, count() - 1))->widget();
}

QRect Comparison::randomRect()
{
    const int x = m_random.between(-20, 50);
    const int y = m_random.between(-20, 50);
    if (m_random.chance(20)) // too small for anything: spare sizes get negative
        return QRect(x, y, m_random.between(-5, 60), m_random.between(-5, 60));
    const int height = m_random.chance(5) ? 50000 : m_random.between(50, 900);
    return QRect(x, y, m_random.between(100, 700), height);
}

QRect Comparison::actualRect(int index) const
{
    return m_layout->itemAt(index)->geometry();
}

/// Where the model puts an item, bent as a plain widget item bends what it is given.
QRect Comparison::expectedRect(int index) const
{
    const LayoutModelItem &item = m_model.items[static_cast<std::size_t>(index)];
    const QRect given(item.x, item.y, item.width, item.height);
    QLayoutItem *const real = m_layout->itemAt(index);
    if (!real->widget() || dynamic_cast<RecordingItem *>(real))
        return given;
    QWidgetItem(real->widget()).setGeometry(given);
    return real->geometry();
}

/// Takes over what the items say of themselves; that is not the layout's doing.
void Comparison::copyItemsToModel()
{
    for (int i = 0; i < count(); ++i) {
        const QLayoutItem &real = *m_layout->itemAt(i);
        LayoutModelItem &item = modelItem(i);
        item.hidden = real.isEmpty();
        item.hintWidth = real.sizeHint().width();
        item.hintHeight = real.sizeHint().height();
        item.minimumWidth = real.minimumSize().width();
        item.minimumHeight = real.minimumSize().height();
        item.maximumWidth = real.maximumSize().width();
        item.maximumHeight = real.maximumSize().height();
        item.placed = false;
    }
}

void Comparison::compareSizes(const QSize &actual, const LayoutModelSize &expected)
{
    if (actual != toSize(expected))
        fail(
            QStringLiteral("wants %1 instead of %2").arg(toText(actual), toText(toSize(expected))));
}

void Comparison::compareMembers(const std::vector<bool> &hidden)
{
    for (int i = 0; i < count(); ++i) {
        QWidget *const widget = m_layout->itemAt(i)->widget();
        if (widget && widget->isHidden() != hidden[static_cast<std::size_t>(i)])
            fail(QStringLiteral("item %1 is %2")
                     .arg(QString::number(i),
                          widget->isHidden() ? QStringLiteral("hidden") : QStringLiteral("shown")));
    }
}

void Comparison::fail(const QString &message)
{
    if (m_failure.isEmpty())
        m_failure = message;
}

QString Comparison::describe(int index) const
{
    const LayoutModelItem &item = m_model.items[static_cast<std::size_t>(index)];
    QString flags;
    flags += item.newRow ? QStringLiteral(" NewRow") : QString();
    flags += item.fullWidth ? QStringLiteral(" FullWidth") : QString();
    flags += item.expandsAcross ? QStringLiteral(" across") : QString();
    flags += item.expandsDown ? QStringLiteral(" down") : QString();
    flags += item.beginsGroup ? QStringLiteral(" begin") : QString();
    flags += item.endsGroup ? QStringLiteral(" end") : QString();
    flags += item.hidden ? QStringLiteral(" hidden") : QString();
    const auto text = [](int width, int height) { return toText(QSize(width, height)); };
    return QStringLiteral("%1:%2, hint %3, minimum %4, maximum %5")
        .arg(QString::number(index), flags, text(item.hintWidth, item.hintHeight),
             text(item.minimumWidth, item.minimumHeight),
             text(item.maximumWidth, item.maximumHeight));
}

} // namespace

Q_DECLARE_METATYPE(Profile)

/**
 * Compares the layout with an independent model of its arithmetic on random lists of items.
 *
 * TESSARK_LAYOUT_LISTS sets the number of lists per kind.
 */
class tst_PropertyLayoutModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomListsAgree_data();
    void randomListsAgree();
};

void tst_PropertyLayoutModel::randomListsAgree_data()
{
    QTest::addColumn<Profile>("profile");

    Profile profile;
    QTest::newRow("labels and fields") << profile;
    profile.fullWidth = 25;
    QTest::newRow("rows that span both columns") << profile;
    profile.bounded = 50;
    QTest::newRow("minimum and maximum sizes") << profile;
    profile.marker = 25;
    QTest::newRow("groups") << profile;
    profile.hidden = 30;
    QTest::newRow("groups with hidden entries") << profile;
    profile.nested = 20;
    profile.loose = 20;
    QTest::newRow("items without widget") << profile;
    profile.expanding = 90;
    profile.newRow = 20;
    QTest::newRow("long rows that expand") << profile;
}

void tst_PropertyLayoutModel::randomListsAgree()
{
    QFETCH(Profile, profile);
    bool isSet = false;
    const int requested = qEnvironmentVariableIntValue("TESSARK_LAYOUT_LISTS", &isSet);
    const int lists = isSet ? requested : 1000;

    for (int seed = 1; seed <= lists; ++seed) {
        Comparison comparison(static_cast<quint32>(seed), profile);
        const bool same = comparison.run();
        QVERIFY2(same, qPrintable(comparison.report()));
    }
}

QTEST_MAIN(tst_PropertyLayoutModel)
#include "tst_PropertyLayoutModel.moc"
