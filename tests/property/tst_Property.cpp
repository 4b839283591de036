#include "property/Property.h"

#include <QTest>

#include <type_traits>

using namespace Tessark::PropertyUI;

namespace {

const QString kName = QStringLiteral("name");
const QString kLabel = QStringLiteral("Label");
const QString kKey = QStringLiteral("key");

Property makeProperty()
{
    return {kName, kLabel, kPropertyTypeInteger};
}

/// A property whose every member differs from that of makeProperty().
Property makeFullProperty()
{
    Property property(QStringLiteral("n"), QStringLiteral("L"), kPropertyTypeFloat, 1, 2, 3);
    property.setHardMaxValue(4).setHint(kKey, 5);
    return property;
}

} // namespace

static_assert(!std::is_polymorphic_v<Property>);
static_assert(std::is_copy_constructible_v<Property> && std::is_copy_assignable_v<Property>);

class tst_Property : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeArgumentsLeaveTheRestInvalid();
    void sixArgumentsSetRangeAndDefault();
    void twoArgumentRangeSetsHardMaximum();
    void threeArgumentRangeKeepsHardMaximumApart();
    void rangeOverwritesAnEarlierHardMaximum();
    void hardMaximumAloneLeavesTheRange();
    void defaultValueIsReplaced();
    void settersReturnTheObject();
    void rangeKeepsTypesApart();
    void absentHintIsInvalidAndNotAdded();
    void hintSetTwiceKeepsTheSecond();
    void hintMayHoldAnInvalidVariant();
    void hintKeysAreCaseSensitive();
    void hintKeysAreSorted();
    void copiesAreIndependent();
    void membersStandInTheirOrder();
};

void tst_Property::threeArgumentsLeaveTheRestInvalid()
{
    const Property property = makeProperty();

    QCOMPARE(property.name, kName);
    QCOMPARE(property.label, kLabel);
    QCOMPARE(property.type, kPropertyTypeInteger);
    QVERIFY(!property.minValue.isValid());
    QVERIFY(!property.maxValue.isValid());
    QVERIFY(!property.hardMaxValue.isValid());
    QVERIFY(!property.defaultValue.isValid());
    QVERIFY(property.hints.isEmpty());
}

void tst_Property::sixArgumentsSetRangeAndDefault()
{
    const Property property(kName, kLabel, kPropertyTypeFloat, -1, 5, 2);

    QCOMPARE(property.name, kName);
    QCOMPARE(property.label, kLabel);
    QCOMPARE(property.type, kPropertyTypeFloat);
    QCOMPARE(property.minValue, QVariant(-1));
    QCOMPARE(property.maxValue, QVariant(5));
    QCOMPARE(property.hardMaxValue, QVariant(5));
    QCOMPARE(property.defaultValue, QVariant(2));
    QVERIFY(property.hints.isEmpty());
}

void tst_Property::twoArgumentRangeSetsHardMaximum()
{
    Property property = makeProperty();
    property.setDefaultValue(7);

    property.setRange(1, 10);

    QCOMPARE(property.minValue, QVariant(1));
    QCOMPARE(property.maxValue, QVariant(10));
    QCOMPARE(property.hardMaxValue, QVariant(10));
    QCOMPARE(property.defaultValue, QVariant(7));
}

void tst_Property::threeArgumentRangeKeepsHardMaximumApart()
{
    Property property = makeProperty();

    property.setRange(1, 10, 100);

    QCOMPARE(property.minValue, QVariant(1));
    QCOMPARE(property.maxValue, QVariant(10));
    QCOMPARE(property.hardMaxValue, QVariant(100));
}

void tst_Property::rangeOverwritesAnEarlierHardMaximum()
{
    Property property = makeProperty();

    property.setHardMaxValue(100);
    property.setRange(0, 10);

    QCOMPARE(property.hardMaxValue, QVariant(10));
}

void tst_Property::hardMaximumAloneLeavesTheRange()
{
    Property property = makeProperty();

    property.setRange(0, 10).setHardMaxValue(100);

    QCOMPARE(property.minValue, QVariant(0));
    QCOMPARE(property.maxValue, QVariant(10));
    QCOMPARE(property.hardMaxValue, QVariant(100));
    QVERIFY(!property.defaultValue.isValid());
}

void tst_Property::defaultValueIsReplaced()
{
    Property property(kName, kLabel, kPropertyTypeInteger, 0, 10, 5);

    property.setDefaultValue(QStringLiteral("text"));
    QCOMPARE(property.defaultValue, QVariant(QStringLiteral("text")));

    property.setDefaultValue(QVariant());
    QVERIFY(!property.defaultValue.isValid());
    QCOMPARE(property.maxValue, QVariant(10));
}

void tst_Property::settersReturnTheObject()
{
    Property property = makeProperty();

    QCOMPARE(&property.setRange(0, 1), &property);
    QCOMPARE(&property.setRange(0, 1, 2), &property);
    QCOMPARE(&property.setDefaultValue(0), &property);
    QCOMPARE(&property.setHardMaxValue(3), &property);
    QCOMPARE(&property.setHint(kKey, 1), &property);
}

void tst_Property::rangeKeepsTypesApart()
{
    Property property = makeProperty();

    property.setRange(QStringLiteral("low"), 1.5, true);

    QCOMPARE(property.minValue, QVariant(QStringLiteral("low")));
    QCOMPARE(property.maxValue, QVariant(1.5));
    QCOMPARE(property.hardMaxValue, QVariant(true));
}

void tst_Property::absentHintIsInvalidAndNotAdded()
{
    const Property property = makeProperty();

    QVERIFY(!property.hint(kKey).isValid());
    QVERIFY(!property.hints.contains(kKey));
}

void tst_Property::hintSetTwiceKeepsTheSecond()
{
    Property property = makeProperty();

    property.setHint(kKey, 1).setHint(kKey, QStringLiteral("two"));

    QCOMPARE(property.hint(kKey), QVariant(QStringLiteral("two")));
    QCOMPARE(property.hints.size(), 1);
}

void tst_Property::hintMayHoldAnInvalidVariant()
{
    Property property = makeProperty();

    property.setHint(kKey, QVariant());

    QVERIFY(property.hints.contains(kKey));
    QVERIFY(!property.hint(kKey).isValid());
}

void tst_Property::hintKeysAreCaseSensitive()
{
    Property property = makeProperty();

    property.setHint(QStringLiteral("key"), 1).setHint(QStringLiteral("Key"), 2);

    QCOMPARE(property.hint(QStringLiteral("key")), QVariant(1));
    QCOMPARE(property.hint(QStringLiteral("Key")), QVariant(2));
    QVERIFY(!property.hint(QStringLiteral("key ")).isValid());
}

void tst_Property::hintKeysAreSorted()
{
    Property property = makeProperty();

    property.setHint(QStringLiteral("b"), 1);
    property.setHint(QStringLiteral("a"), 2);
    property.setHint(QStringLiteral("B"), 3);

    const QStringList expected = {QStringLiteral("B"), QStringLiteral("a"), QStringLiteral("b")};
    QCOMPARE(QStringList(property.hints.keys()), expected);
}

void tst_Property::copiesAreIndependent()
{
    const Property original = makeFullProperty();

    Property copy = original;
    copy.setRange(10, 20).setDefaultValue(30).setHint(kKey, 50);
    copy.name = kName;

    QCOMPARE(original.name, QStringLiteral("n"));
    QCOMPARE(original.minValue, QVariant(1));
    QCOMPARE(original.maxValue, QVariant(2));
    QCOMPARE(original.hardMaxValue, QVariant(4));
    QCOMPARE(original.defaultValue, QVariant(3));
    QCOMPARE(original.hint(kKey), QVariant(5));
    copy = original;
    QCOMPARE(copy.label, QStringLiteral("L"));
    QCOMPARE(copy.type, kPropertyTypeFloat);
    QCOMPARE(copy.hardMaxValue, QVariant(4));
    QCOMPARE(copy.hint(kKey), QVariant(5));
}

// A structured binding takes all members in order, and compiles for no other number of them.
void tst_Property::membersStandInTheirOrder()
{
    const Property property = makeFullProperty();

    const auto &[name, label, type, min, max, hardMax, value, hints] = property;

    QCOMPARE(name, property.name);
    QCOMPARE(label, property.label);
    QCOMPARE(type, property.type);
    QCOMPARE(min, property.minValue);
    QCOMPARE(max, property.maxValue);
    QCOMPARE(hardMax, property.hardMaxValue);
    QCOMPARE(value, property.defaultValue);
    QCOMPARE(hints.value(kKey), QVariant(5));
}

QTEST_APPLESS_MAIN(tst_Property)
#include "tst_Property.moc"
