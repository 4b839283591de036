#include "EditedObject.h"

#include <host/HostHints.h>

#include <algorithm>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace Operations {

namespace {

enum class Mode { Slow, Fast, Exact };

QVariant vector(float x, float y)
{
    return QVariant::fromValue(QVector2D(x, y));
}

QHash<QString, QVariant> initialValues()
{
    return {{kGain, 1.0},
            {kLimit, 10.0},
            {kCount, 5},
            {kOn, false},
            {kTitle, QStringLiteral("new")},
            {kMode, 0},
            {kPlace, vector(0, 1)}}; // all zeros are no default with Qt 5
}

void setRanges(const EditedObject &object)
{
    object.row(kGain)->setRange(0.0, kHighestGain);
    object.row(kCount)->setRange(0, kHighestCount);
    object.row(kPlace)->setRange(vector(-100, -100), vector(100, 100));
    if (Property *const limit = object.row(kLimit))
        limit->setRange(1.0, kHighestLimit);
}

class StoreObject final : public EditedObject
{
public:
    explicit StoreObject(int number)
        : m_number(number)
    {
        makeRows();
        setRanges(*this);
        for (const QString &name : facts().defaults.keys())
            row(name)->setDefaultValue(facts().defaults.value(name));
        StoreObject::renew();
    }

    const PropertyList &list() const override { return m_list; }
    IPropertyEditorDelegate *delegate() const override { return m_store.get(); }

    ObjectFacts facts() const override
    {
        ObjectFacts facts;
        facts.initial = initialValues();
        if (m_number == 1)
            facts.initial[kCount] = 7;
        if (m_number == 2)
            facts.initial.remove(kLimit);
        facts.defaults = facts.initial;
        return facts;
    }

    QVariant kept(const QString &name) const override { return m_store->value(row(name)); }

    void hostSets(const QString &name, const QVariant &value) override
    {
        m_store->setValue(row(name), value, IPropertyEditorDelegate::NewChange);
    }

    int triggers() const override { return m_triggers; }
    bool ownsRows() const override { return false; }

    void renew() override
    {
        m_store = std::make_unique<PropertyStore>();
        m_store->reset(m_list);
        QObject::connect(m_store.get(), &PropertyStore::valueChanged, m_store.get(),
                         [this](const Property *property) {
                             if (property->name == kReset)
                                 ++m_triggers;
                         });
    }

private:
    void makeRows()
    {
        m_list.number(kGain, QStringLiteral("Gain"));
        if (m_number != 2)
            m_list.number(kLimit, QStringLiteral("Limit"));
        m_list.group(QStringLiteral("Sound"), [this] {
            m_list.integer(kCount, QStringLiteral("Count"));
            m_list.boolean(kOn, QStringLiteral("On"));
        });
        m_list.string(kTitle, QStringLiteral("Title"));
        m_list.choice(kMode, QStringLiteral("Mode"))
            .choice(0, QStringLiteral("slow"))
            .choice(1, QStringLiteral("fast"))
            .choice(2, QStringLiteral("exact"));
        m_list.vec2(kPlace, QStringLiteral("Place"));
        m_list.action(kReset, QStringLiteral("Reset"));
    }

    int m_number;
    PropertyList m_list;
    std::unique_ptr<PropertyStore> m_store;
    int m_triggers = 0;
};

struct Parameters
{
    double gain = 1.0;
    double limit = 10.0;
    int count = 5;
    bool on = false;
    QString title = QStringLiteral("new");
    Mode mode = Mode::Slow;
    QVector2D place{0, 1};
};

class StructObject final : public EditedObject
{
public:
    StructObject() { StructObject::renew(); }

    const PropertyList &list() const override { return m_binding->list(); }
    IPropertyEditorDelegate *delegate() const override { return m_binding.get(); }

    ObjectFacts facts() const override
    {
        ObjectFacts facts;
        facts.initial = initialValues();
        facts.defaults = facts.initial;
        return facts;
    }

    QVariant kept(const QString &name) const override
    {
        const QHash<QString, QVariant> values = {
            {kGain, m_parameters.gain},   {kLimit, m_parameters.limit},
            {kCount, m_parameters.count}, {kOn, m_parameters.on},
            {kTitle, m_parameters.title}, {kMode, int(m_parameters.mode)},
            {kPlace, m_parameters.place}};
        return values.value(name);
    }

    void hostSets(const QString &name, const QVariant &value) override
    {
        if (name == kGain)
            m_parameters.gain = value.toDouble();
        else if (name == kLimit)
            m_parameters.limit = value.toDouble();
        else if (name == kCount)
            m_parameters.count = value.toInt();
        else if (name == kOn)
            m_parameters.on = value.toBool();
        else if (name == kTitle)
            m_parameters.title = value.toString();
        else if (name == kMode)
            m_parameters.mode = Mode(value.toInt());
        else
            m_parameters.place = value.value<QVector2D>();
    }

    int triggers() const override { return m_triggers; }
    bool ownsRows() const override { return true; }

    void renew() override
    {
        m_parameters = Parameters();
        m_binding = std::make_unique<StructBinding<Parameters>>(&m_parameters);
        auto &rows = *m_binding;
        rows.bind(&Parameters::gain, QStringLiteral("Gain"), kGain);
        rows.bind(&Parameters::limit, QStringLiteral("Limit"), kLimit);
        rows.group(QStringLiteral("Sound"), [&rows] {
            rows.bind(&Parameters::count, QStringLiteral("Count"), kCount);
            rows.bind(&Parameters::on, QStringLiteral("On"), kOn);
        });
        rows.bind(&Parameters::title, QStringLiteral("Title"), kTitle);
        rows.bind(&Parameters::mode, QStringLiteral("Mode"),
                  {{Mode::Slow, QStringLiteral("slow")},
                   {Mode::Fast, QStringLiteral("fast")},
                   {Mode::Exact, QStringLiteral("exact")}},
                  kMode);
        rows.bind(&Parameters::place, QStringLiteral("Place"), kPlace);
        rows.action(
            QStringLiteral("Reset"), [this] { ++m_triggers; }, kReset);
        setRanges(*this);
    }

private:
    Parameters m_parameters;
    std::unique_ptr<StructBinding<Parameters>> m_binding;
    int m_triggers = 0;
};

class Amplifier final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double gain MEMBER m_gain NOTIFY changed)
    Q_PROPERTY(double limit MEMBER m_limit NOTIFY changed)
    Q_PROPERTY(int count MEMBER m_count NOTIFY changed)
    Q_PROPERTY(bool on MEMBER m_on NOTIFY changed)
    Q_PROPERTY(QString title MEMBER m_title NOTIFY changed)
    Q_PROPERTY(QVector2D place MEMBER m_place NOTIFY changed)

Q_SIGNALS:
    void changed();

private:
    double m_gain = 1.0;
    double m_limit = 10.0;
    int m_count = 5;
    bool m_on = false;
    QString m_title = QStringLiteral("new");
    QVector2D m_place{0, 1};
};

class BoundObject final : public EditedObject
{
public:
    BoundObject() { BoundObject::renew(); }

    const PropertyList &list() const override { return m_binding->list(); }
    IPropertyEditorDelegate *delegate() const override { return m_binding->delegate(); }

    ObjectFacts facts() const override
    {
        ObjectFacts facts;
        facts.initial = initialValues();
        facts.initial.remove(kMode);
        facts.defaults = facts.initial;
        facts.defaults.remove(kCount);
        facts.hasGroup = false;
        facts.hasAction = false;
        return facts;
    }

    QVariant kept(const QString &name) const override
    {
        return m_amplifier->property(name.toLatin1());
    }

    void hostSets(const QString &name, const QVariant &value) override
    {
        m_amplifier->setProperty(name.toLatin1(), value);
    }

    int triggers() const override { return 0; }
    bool ownsRows() const override { return true; }

    void renew() override
    {
        m_binding.reset();
        m_amplifier = std::make_unique<Amplifier>();
        m_binding = std::make_unique<ObjectBinding>();
        m_binding->add(m_amplifier.get());
        setRanges(*this);
        const QHash<QString, QVariant> defaults = facts().defaults;
        for (auto it = defaults.cbegin(); it != defaults.cend(); ++it)
            row(it.key())->setDefaultValue(it.value());
    }

    void watch(PropertyEditorPanel *panel) override { m_binding->watch(panel); }

private:
    std::unique_ptr<Amplifier> m_amplifier;
    std::unique_ptr<ObjectBinding> m_binding;
};

void setHint(Property *property, const QString &key, const QString &text)
{
    if (!property)
        return;
    if (text.isEmpty())
        property->hints.remove(key);
    else
        property->setHint(key, text);
}

} // namespace

EditedObject::~EditedObject() = default;

void EditedObject::watch(PropertyEditorPanel *) {}

Property *EditedObject::row(const QString &name) const
{
    const QVector<Property *> rows = list().properties();
    const auto row = std::find_if(rows.cbegin(), rows.cend(), [&name](const Property *candidate) {
        return candidate->name == name;
    });
    return row == rows.cend() ? nullptr : *row;
}

void EditedObject::setRules(const QString &placeVisible, const QString &titleEnabled,
                            bool gainFollows) const
{
    setHint(row(kPlace), kHostHintVisibleWhen, placeVisible);
    setHint(row(kTitle), kHostHintEnabledWhen, titleEnabled);
    setHint(row(kGain), kHostHintMaximumFollows, gainFollows ? kLimit : QString());
}

std::unique_ptr<EditedObject> makeStoreObject(int number)
{
    return std::make_unique<StoreObject>(number);
}

std::unique_ptr<EditedObject> makeStructObject()
{
    return std::make_unique<StructObject>();
}

std::unique_ptr<EditedObject> makeBoundObject()
{
    return std::make_unique<BoundObject>();
}

} // namespace Operations

#include "EditedObject.moc"
