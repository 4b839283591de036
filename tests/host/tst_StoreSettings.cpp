#include <host/PropertyList.h>
#include <host/PropertyStore.h>

#include <property/PropertyUI.h>

#include <QColor>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVector3D>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr auto kNew = IPropertyEditorDelegate::NewChange;

const QString kOne = QStringLiteral("one");
const QString kTwo = QStringLiteral("two");
const QString kThree = QStringLiteral("three");

/// A list of one property that is named "p".
PropertyList listOf(const QString &type)
{
    PropertyList list;
    Property &property = list.append(Property(QStringLiteral("p"), QString(), type));
    property.setRange(-1000, 1000);
    if (type == kPropertyTypeEnumeration)
        property.setHint(kPropertyHintDisplayValues, QStringList({kOne, kTwo, kThree}));
    return list;
}

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

} // namespace

class tst_StoreSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void valuesComeBack_data();
    void valuesComeBack();
    void valuesByHand_data();
    void valuesByHand();
    void badValues_data();
    void badValues();
    void hintNamesTheKey();
    void otherKeysStay();
    void absentKeysChangeNothing();
    void valueOutsideOfTheRangeIsTold();
    void structuralRowsAreNotWritten();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("settings.ini")); }
    QByteArray fileText() const;
    void writeFile(const QByteArray &text) const;
    QVector<Problem> readInto(PropertyStore &store, const PropertyList &list) const;
    void writeFrom(const PropertyStore &store, const PropertyList &list) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_StoreSettings::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QByteArray tst_StoreSettings::fileText() const
{
    QFile file(path());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_StoreSettings::writeFile(const QByteArray &text) const
{
    QFile file(path());
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(text);
}

QVector<Problem> tst_StoreSettings::readInto(PropertyStore &store, const PropertyList &list) const
{
    const QSettings settings(path(), QSettings::IniFormat);
    return store.readSettings(settings, list);
}

void tst_StoreSettings::writeFrom(const PropertyStore &store, const PropertyList &list) const
{
    QSettings settings(path(), QSettings::IniFormat);
    store.writeSettings(settings, list);
}

void tst_StoreSettings::valuesComeBack_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *name, const QString &type, const QVariant &value) {
        QTest::newRow(name) << type << value;
    };
    row("int", kPropertyTypeInteger, -7);
    row("float", kPropertyTypeFloat, 0.1);
    row("small float", kPropertyTypeFloat, 1.2345678901234567e-12);
    row("true", kPropertyTypeBoolean, true);
    row("false", kPropertyTypeBoolean, false);
    row("choice", kPropertyTypeEnumeration, 2);
    row("vec3", kPropertyTypeVec3, QVector3D(1.5F, -2, 3));
    row("color", kPropertyTypeColor, QColor::fromRgbF(0.25F, 0.5F, 0.75F, 1.0F));
    row("size", kPropertyTypeSize, QSize(64, 32));
    for (const char *text : {"plain", "with, commas; and = signs", "  spaces ", "", "true", "12",
                             "[1,2]", "\"quoted\"", "%20 @ \\ /", "l\xc3\xa4nger\nals eine Zeile"})
        row(*text ? text : "empty text", kPropertyTypeText, QString::fromUtf8(text));
}

void tst_StoreSettings::valuesComeBack()
{
    QFETCH(QString, type);
    QFETCH(QVariant, value);
    const PropertyList list = listOf(type);
    Property *const property = list.properties().first();
    PropertyStore store, other;
    store.reset(list);
    other.reset(list);
    store.setValue(property, value, kNew);

    writeFrom(store, list);
    const auto problems = readInto(other, list);

    QCOMPARE(texts(problems), QStringList());
    QCOMPARE(other.value(property), store.value(property));
    QCOMPARE(other.toJson(list), store.toJson(list));
}

void tst_StoreSettings::valuesByHand_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("number") << kPropertyTypeFloat << QByteArray("2.5") << QByteArray("2.5");
    QTest::newRow("truth") << kPropertyTypeBoolean << QByteArray("true") << QByteArray("true");
    QTest::newRow("colour name") << kPropertyTypeColor << QByteArray("#ff0000")
                                 << QByteArray("[1,0,0,1]");
    QTest::newRow("array with commas")
        << kPropertyTypeVec3 << QByteArray("[1, 2, 3]") << QByteArray("[1,2,3]");
    QTest::newRow("text with commas")
        << kPropertyTypeString << QByteArray("a, b, c") << QByteArray("\"a, b, c\"");
    QTest::newRow("vector as text")
        << kPropertyTypeVec3 << QByteArray("1 2 3") << QByteArray("[1,2,3]");
}

void tst_StoreSettings::valuesByHand()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, json);
    const PropertyList list = listOf(type);
    PropertyStore store;
    store.reset(list);
    writeFile("[General]\np=" + written + '\n');

    const auto problems = readInto(store, list);

    QCOMPARE(texts(problems), QStringList());
    QCOMPARE(QJsonDocument(store.toJson(list)).toJson(QJsonDocument::Compact),
             "{\"p\":" + json + '}');
}

void tst_StoreSettings::badValues_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("problem");

    QTest::newRow("word for a number")
        << kPropertyTypeInteger << QByteArray("many")
        << QStringLiteral("f: error: /p: expected a whole number, found a string");
    QTest::newRow("truth for a number")
        << kPropertyTypeInteger << QByteArray("true")
        << QStringLiteral("f: error: /p: expected a whole number, found a boolean");
}

void tst_StoreSettings::badValues()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, written);
    QFETCH(QString, problem);
    const PropertyList list = listOf(type);
    PropertyStore store;
    store.reset(list);
    const QVariant before = store.value(list.properties().first());
    writeFile("[General]\np=" + written + '\n');

    QCOMPARE(texts(readInto(store, list)), QStringList(problem));
    QCOMPARE(store.value(list.properties().first()), before);
}

void tst_StoreSettings::hintNamesTheKey()
{
    const PropertyList list = listOf(kPropertyTypeInteger);
    Property *const property = list.properties().first();
    property->setHint(kPropertyHintPreferencesKey, QStringLiteral("Sound/Gain"));
    PropertyStore store, other;
    store.reset(list);
    store.setValue(property, 5, kNew);

    writeFrom(store, list);
    readInto(other, list);

    QCOMPARE(fileText().trimmed(), QByteArray("[Sound]\nGain=5"));
    QCOMPARE(other.value(property), QVariant(5));
}

void tst_StoreSettings::otherKeysStay()
{
    const PropertyList list = listOf(kPropertyTypeInteger);
    PropertyStore store;
    store.reset(list);
    writeFile("[General]\nother=kept\np=4\n[Window]\nwidth=300\n");

    readInto(store, list);
    store.setValue(list.properties().first(), 6, kNew);
    writeFrom(store, list);

    QCOMPARE(fileText().trimmed(), QByteArray("[General]\nother=kept\np=6\n\n[Window]\nwidth=300"));
}

void tst_StoreSettings::absentKeysChangeNothing()
{
    const PropertyList list = listOf(kPropertyTypeInteger);
    PropertyStore store;
    store.reset(list);
    store.setValue(list.properties().first(), 6, kNew);

    QCOMPARE(texts(readInto(store, list)), QStringList());
    QCOMPARE(store.value(list.properties().first()), QVariant(6));
}

void tst_StoreSettings::valueOutsideOfTheRangeIsTold()
{
    const PropertyList list = listOf(kPropertyTypeInteger);
    PropertyStore store;
    store.reset(list);
    writeFile("[General]\np=5000\n");

    QCOMPARE(texts(readInto(store, list)),
             QStringList(QStringLiteral("f: warning: /p: 5000 is outside of the range")));
    QCOMPARE(store.value(list.properties().first()), QVariant(5000));
}

void tst_StoreSettings::structuralRowsAreNotWritten()
{
    for (const QString &type : {kPropertyTypeBeginGroup, kPropertyTypeAction, kPropertyTypeTab}) {
        const PropertyList list = listOf(type);
        PropertyStore store;
        store.reset(list);
        store.setValue(list.properties().first(), true, kNew);
        writeFrom(store, list);
        QCOMPARE(fileText(), QByteArray());
    }
}

QTEST_MAIN(tst_StoreSettings)
#include "tst_StoreSettings.moc"
