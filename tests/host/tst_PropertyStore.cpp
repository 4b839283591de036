#include <host/PropertyList.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSize>
#include <QTest>
#include <QVector3D>

#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

Property &append(PropertyList &list, const char *name, const QString &type)
{
    return list.append(Property(QString::fromUtf8(name), QString(), type));
}

} // namespace

class tst_PropertyStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void startsFromDefaults();
    void absentDefaultIsTheTypesOwn_data();
    void absentDefaultIsTheTypesOwn();
    void absentDefaultIsTheFirstChoice();
    void absentDefaultLiesInRange();
    void resetForgetsEverything();
    void readingIsSilent();

    void setValueIsKeptAndTold();
    void actionIsTold();
    void panelEditsReachTheStore();

    void valuesAreRead();
    void absentNamesKeepTheirValues();
    void problems_data();
    void problems();
    void badValueChangesNothing();
    void everyProblemIsListed();

    void unknownValuesAreWrittenBack();
    void unknownValuesOfTheFileBeforeAreGone();
    void structuralRowsAreNotWritten();
    void valueWithoutJsonFormIsWrittenBack();
    void writtenValuesReadBack();

private:
    Property *property(const char *name) const;
    QVariant valueOf(const char *name) { return m_store->value(property(name)); }

    PropertyList m_list; // before the store, which never outlives it
    std::unique_ptr<PropertyStore> m_store;
};

Property *tst_PropertyStore::property(const char *name) const
{
    for (Property *candidate : m_list.properties()) {
        if (candidate->name == QLatin1String(name))
            return candidate;
    }
    return nullptr;
}

void tst_PropertyStore::init()
{
    m_list = PropertyList();
    append(m_list, "group", kPropertyTypeBeginGroup);
    append(m_list, "title", kPropertyTypeString).setDefaultValue(QStringLiteral("none"));
    append(m_list, "count", kPropertyTypeInteger).setRange(0, 10, 100).setDefaultValue(3);
    append(m_list, "color", kPropertyTypeColor);
    append(m_list, "", kPropertyTypeEndGroup);
    append(m_list, "go", kPropertyTypeAction);
    m_store = std::make_unique<PropertyStore>();
    m_store->reset(m_list);
}

void tst_PropertyStore::startsFromDefaults()
{
    QCOMPARE(valueOf("title"), QVariant(QStringLiteral("none")));
    QCOMPARE(valueOf("count"), QVariant(3));
    QCOMPARE(valueOf("color"), QVariant(QColor(Qt::black)));
    QVERIFY(!valueOf("group").isValid());
    QVERIFY(!valueOf("go").isValid());
    QCOMPARE(compact(m_store->toJson(m_list)),
             QByteArray(R"({"color":[0,0,0,1],"count":3,"title":"none"})"));
}

void tst_PropertyStore::absentDefaultIsTheTypesOwn_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const QString &type, const char *json) {
        QTest::newRow(qPrintable(type)) << type << QByteArray(json);
    };
    row(kPropertyTypeInteger, "0");
    row(kPropertyTypeBoolean, "false");
    row(kPropertyTypeFloat, "0");
    row(kPropertyTypePercent, "0");
    row(kPropertyTypeVec2, "[0,0]");
    row(kPropertyTypeVec3, "[0,0,0]");
    row(kPropertyTypeVec4, "[0,0,0,0]");
    row(kPropertyTypeColor, "[0,0,0,1]");
    row(kPropertyTypeColorRGB, "[0,0,0]");
    row(kPropertyTypeString, R"("")");
    row(kPropertyTypeStaticText, R"("")");
    row(kPropertyTypeText, R"("")");
    row(kPropertyTypeFilename, R"("")");
    row(kPropertyTypePoint, "[0,0]");
    row(kPropertyTypePointF, "[0,0]");
    row(kPropertyTypeAngle, "0");
    row(kPropertyTypeSize, "[1,1]");
    row(kPropertyTypeSizeF, "[1,1]");
    row(kPropertyTypeRect, "[0,0,0,0]");
    row(kPropertyTypeRectF, "[0,0,0,0]");
    row(kPropertyTypeRenderSize, "[1,1]");
    row(kPropertyTypeTransform2D, "[1,0,0,0,1,0,0,0,1]");
    row(kPropertyTypeImage, R"("")");
    row(kPropertyTypeImageFormat, R"({"compressionRate":80,"format":"png"})");
    row(kPropertyTypeTexture, R"("")");
}

void tst_PropertyStore::absentDefaultIsTheTypesOwn()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, json);
    PropertyList list;
    append(list, "a", type);

    m_store->reset(list);

    QCOMPARE(compact(m_store->toJson(list)), R"({"a":)" + json + "}");
}

void tst_PropertyStore::absentDefaultIsTheFirstChoice()
{
    const QStringList texts{QStringLiteral("One"), QStringLiteral("Two")};
    PropertyList list;
    append(list, "choice", kPropertyTypeEnumeration).setHint(kPropertyHintDisplayValues, texts);
    append(list, "nothing", kPropertyTypeEnumeration);

    m_store->reset(list);

    // Where there is nothing to choose from, no value could be read again.
    QCOMPARE(compact(m_store->toJson(list)), QByteArray(R"({"choice":0})"));
}

void tst_PropertyStore::absentDefaultLiesInRange()
{
    PropertyList list;
    Property &low = append(list, "low", kPropertyTypeInteger).setRange(2, 5);
    Property &high = append(list, "high", kPropertyTypeFloat).setRange(-2.0, -1.5);
    Property &vector = append(list, "vector", kPropertyTypeVec3)
                           .setRange(QVector3D(1, -1, -3), QVector3D(2, 1, -2));
    Property &choice = append(list, "choice", kPropertyTypeEnumeration)
                           .setHint(kPropertyHintValues, QVariantList{QStringLiteral("x"), 7});

    m_store->reset(list);

    QCOMPARE(m_store->value(&low), QVariant(2));
    QCOMPARE(m_store->value(&high), QVariant(-1.5));
    QCOMPARE(m_store->value(&vector), QVariant(QVector3D(1, 0, -2)));
    QCOMPARE(m_store->value(&choice), QVariant(QStringLiteral("x")));
}

void tst_PropertyStore::resetForgetsEverything()
{
    QVERIFY(m_store->readValues(R"({"title": "x", "other": 1})", m_list).isEmpty());
    m_store->setValue(property("count"), 7, IPropertyEditorDelegate::NewChange);

    m_store->reset(m_list);

    QCOMPARE(compact(m_store->toJson(m_list)),
             QByteArray(R"({"color":[0,0,0,1],"count":3,"title":"none"})"));
}

void tst_PropertyStore::readingIsSilent()
{
    QSignalSpy spy(m_store.get(), &PropertyStore::valueChanged);

    m_store->readValues(R"({"title": "x"})", m_list);
    m_store->reset(m_list);

    QVERIFY(spy.isEmpty());
}

void tst_PropertyStore::setValueIsKeptAndTold()
{
    QSignalSpy spy(m_store.get(), &PropertyStore::valueChanged);

    m_store->setValue(property("count"), 7, IPropertyEditorDelegate::NewChange);
    m_store->setValue(property("count"), 8, IPropertyEditorDelegate::ContinuedChange);

    QCOMPARE(valueOf("count"), QVariant(8));
    QCOMPARE(int(spy.size()), 2);
    QCOMPARE(spy.at(0).at(0).value<Property *>(), property("count"));
    QCOMPARE(spy.at(0).at(1).value<QVariant>(), QVariant(7));
    QCOMPARE(spy.at(0).at(2).toBool(), false);
    QCOMPARE(spy.at(1).at(1).value<QVariant>(), QVariant(8));
    QCOMPARE(spy.at(1).at(2).toBool(), true);
}

void tst_PropertyStore::actionIsTold()
{
    QSignalSpy spy(m_store.get(), &PropertyStore::valueChanged);

    m_store->setValue(property("go"), QVariant(), IPropertyEditorDelegate::NewChange);

    QCOMPARE(int(spy.size()), 1);
    QCOMPARE(spy.at(0).at(0).value<Property *>(), property("go"));
    QVERIFY(!m_store->toJson(m_list).contains(QStringLiteral("go")));
}

void tst_PropertyStore::panelEditsReachTheStore()
{
    PropertyEditorPanel panel(m_list.properties(), m_store.get(), nullptr);
    panel.updateUI();
    auto *const field = panel.findChild<QLineEdit *>();
    QVERIFY(field);
    QCOMPARE(field->text(), QStringLiteral("none"));

    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("abc"));
    QTest::keyClick(field, Qt::Key_Return);

    QCOMPARE(valueOf("title"), QVariant(QStringLiteral("abc")));
}

void tst_PropertyStore::valuesAreRead()
{
    const auto found =
        m_store->readValues(R"({"title": "x", "count": 100, "color": "red"})", m_list);

    QCOMPARE(texts(found), QStringList());
    QCOMPARE(valueOf("title"), QVariant(QStringLiteral("x")));
    QCOMPARE(valueOf("count"), QVariant(100));
    QCOMPARE(valueOf("color"), QVariant(QColor(255, 0, 0)));
}

void tst_PropertyStore::absentNamesKeepTheirValues()
{
    m_store->setValue(property("count"), 7, IPropertyEditorDelegate::NewChange);

    m_store->readValues("{}", m_list);

    QCOMPARE(valueOf("count"), QVariant(7));
    QCOMPARE(valueOf("title"), QVariant(QStringLiteral("none")));
}

void tst_PropertyStore::problems_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const QByteArray &json, const char *problem) {
        QTest::newRow(name) << json << QString::fromUtf8(problem);
    };
    row("syntax", "{\n  \"title\": }", "f:2:12: error: object is missing after a comma");
    row("invalid UTF-8", "{\"\xFF\"}", "f:1:3: error: invalid UTF-8: byte 0xff");
    row("nothing", "", "f:1:1: error: the document is empty");
    row("array", "[]", "f: error: expected an object, found an array");
    row("wrong type", R"({"count": "3"})",
        "f: error: /count: expected a whole number, found a string");
    row("null", R"({"title": null})", "f: error: /title: expected a string, found null");
    row("wrong part", R"({"color": [0, 0, 2]})",
        "f: error: /color/2: a colour component must lie between 0 and 1");
    row("above the hard maximum", R"({"count": 101})",
        "f: warning: /count: 101 is outside of the range");
}

void tst_PropertyStore::problems()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);

    QCOMPARE(texts(m_store->readValues(json, m_list)), QStringList{problem});
}

void tst_PropertyStore::badValueChangesNothing()
{
    const auto found = m_store->readValues(R"({"count": "x", "title": "y"})", m_list);

    QVERIFY(hasErrors(found));
    QCOMPARE(valueOf("count"), QVariant(3));
    QCOMPARE(valueOf("title"), QVariant(QStringLiteral("y")));
    QCOMPARE(m_store->toJson(m_list).value(QStringLiteral("count")), QJsonValue(3));
}

void tst_PropertyStore::everyProblemIsListed()
{
    PropertyList list;
    append(list, "a/b", kPropertyTypeBoolean);
    append(list, "c", kPropertyTypeBoolean);

    QCOMPARE(texts(m_store->readValues(R"({"c": 1, "a/b": 2})", list)),
             (QStringList{QStringLiteral("f: error: /a~1b: expected a boolean, found a number"),
                          QStringLiteral("f: error: /c: expected a boolean, found a number")}));
}

void tst_PropertyStore::unknownValuesAreWrittenBack()
{
    const QByteArray unknown = R"({"Z":null,"a":[1,2.5,{"b":"\ud800","k":[]}],)"
                               R"("big":9007199254740991,"empty":"","f":1e-300,"t":true})";
    QJsonObject expected = QJsonDocument::fromJson(unknown).object();

    QVERIFY(m_store->readValues(unknown, m_list).isEmpty());

    QJsonObject written = m_store->toJson(m_list);
    for (const char *name : {"title", "count", "color"})
        written.remove(QLatin1String(name));
    QCOMPARE(written, expected);
    QCOMPARE(compact(written), compact(expected));
}

void tst_PropertyStore::unknownValuesOfTheFileBeforeAreGone()
{
    m_store->readValues(R"({"old": 1})", m_list);
    m_store->readValues(R"({"new": 2})", m_list);

    const QJsonObject written = m_store->toJson(m_list);
    QVERIFY(!written.contains(QStringLiteral("old")));
    QCOMPARE(written.value(QStringLiteral("new")), QJsonValue(2));
}

void tst_PropertyStore::structuralRowsAreNotWritten()
{
    m_store->setValue(property("group"), false, IPropertyEditorDelegate::NewChange);

    QVERIFY(!m_store->toJson(m_list).contains(QStringLiteral("group")));
    QVERIFY(!m_store->toJson(m_list).contains(QString()));
}

void tst_PropertyStore::valueWithoutJsonFormIsWrittenBack()
{
    append(m_list, "wood", QStringLiteral("host/own")).setDefaultValue(QSize(1, 2));
    m_store->reset(m_list);

    const auto found = m_store->readValues(R"({"wood": null})", m_list);

    QCOMPARE(texts(found),
             QStringList{QStringLiteral("f: error: /wood: expected a value, found null")});
    QVERIFY(m_store->toJson(m_list).value(QStringLiteral("wood")).isNull());
}

void tst_PropertyStore::writtenValuesReadBack()
{
    m_store->setValue(property("title"), QStringLiteral("ä\n"), IPropertyEditorDelegate::NewChange);
    m_store->setValue(property("color"), QColor(1, 2, 3, 4), IPropertyEditorDelegate::NewChange);
    PropertyStore other;
    other.reset(m_list);

    const auto found = other.readValues(QJsonDocument(m_store->toJson(m_list)).toJson(), m_list);

    QCOMPARE(texts(found), QStringList());
    for (Property *row : m_list.properties())
        QCOMPARE(other.value(row), m_store->value(row));
    QCOMPARE(other.toJson(m_list), m_store->toJson(m_list));
}

QTEST_MAIN(tst_PropertyStore)
#include "tst_PropertyStore.moc"
