#include <host/HostHints.h>
#include <host/PropertyListReader.h>

#include <property/PropertyVocabulary.h>

#include <support/PictureFolder.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

QJsonObject readObject(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

/// The document that a sample stands for, as bytes.
QByteArray documentOf(const QJsonObject &sample)
{
    const QJsonValue list = sample.value(QLatin1String("list"));
    if (list.isArray())
        return QJsonDocument(list.toArray()).toJson();
    if (list.isObject())
        return QJsonDocument(list.toObject()).toJson();
    return QJsonDocument(
               QJsonObject{{QStringLiteral("version"), 1},
                           {QStringLiteral("properties"), sample.value(QLatin1String("rows"))}})
        .toJson();
}

QString errorsOf(const QVector<Problem> &problems)
{
    QStringList texts;
    for (const Problem &problem : problems) {
        if (problem.severity == Problem::Severity::Error)
            texts.append(problem.toString(QStringLiteral("sample")));
    }
    return texts.join(QLatin1Char('\n'));
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

} // namespace

/// The schema must say what the reader does: both judge the same samples, the schema in
/// check_schema.py and the reader here.
class tst_PropertyListSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void readerJudgesSamples_data();
    void readerJudgesSamples();
    void schemaNamesEveryType();
    void schemaNamesEveryHint();

private:
    QJsonObject definition(const char *name) const;

    QJsonObject m_schema;
    QJsonObject m_samples;
    PictureFolder m_pictures;
};

void tst_PropertyListSchema::initTestCase()
{
    m_schema = readObject(QStringLiteral(TESSARK_SCHEMA_FILE));
    m_samples = readObject(QStringLiteral(TESSARK_SAMPLES_FILE));
    QVERIFY(!m_schema.isEmpty());
    QVERIFY(!m_samples.isEmpty());
    m_pictures.addPicture(QStringLiteral("dot.png"), Qt::red);
    m_pictures.addFile(QStringLiteral("text.png"), "no picture");
}

void tst_PropertyListSchema::readerJudgesSamples_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isGood");
    for (const QString &group : m_samples.keys()) {
        const QJsonArray samples = m_samples.value(group).toArray();
        QVERIFY2(!samples.isEmpty(), qPrintable(group));
        for (const QJsonValue &sample : samples) {
            const QString name = sample[QLatin1String("name")].toString();
            QTest::addRow("%s: %s", qPrintable(group), qPrintable(name))
                << documentOf(sample.toObject()) << (group == QLatin1String("valid"));
        }
    }
}

void tst_PropertyListSchema::readerJudgesSamples()
{
    QFETCH(QByteArray, json);
    QFETCH(bool, isGood);

    const auto result = readPropertyList(json, m_pictures.path());

    const QString errors = errorsOf(result.problems);
    QVERIFY2(errors.isEmpty() == isGood, qPrintable(errors));
}

QJsonObject tst_PropertyListSchema::definition(const char *name) const
{
    return m_schema.value(QLatin1String("definitions"))
        .toObject()
        .value(QLatin1String(name))
        .toObject();
}

void tst_PropertyListSchema::schemaNamesEveryType()
{
    const QStringList types{
        kPropertyTypeNone,        kPropertyTypeInteger,     kPropertyTypeBoolean,
        kPropertyTypeFloat,       kPropertyTypePercent,     kPropertyTypeVec2,
        kPropertyTypeVec3,        kPropertyTypeVec4,        kPropertyTypeEnumeration,
        kPropertyTypeColor,       kPropertyTypeColorRGB,    kPropertyTypeImage,
        kPropertyTypeString,      kPropertyTypeStaticText,  kPropertyTypeText,
        kPropertyTypeFilename,    kPropertyTypePoint,       kPropertyTypePointF,
        kPropertyTypeAngle,       kPropertyTypeSize,        kPropertyTypeSizeF,
        kPropertyTypeRect,        kPropertyTypeRectF,       kPropertyTypeSeparator,
        kPropertyTypeBeginGroup,  kPropertyTypeEndGroup,    kPropertyTypeBeginTabGroup,
        kPropertyTypeEndTabGroup, kPropertyTypeTab,         kPropertyTypeAction,
        kPropertyTypeRenderSize,  kPropertyTypeImageFormat, kPropertyTypeTransform2D,
        kPropertyTypeTexture,
    };
    QStringList named;
    for (const QJsonValue &type : definition("typeName").value(QLatin1String("enum")).toArray())
        named.append(type.toString());

    QCOMPARE(sorted(named), sorted(types));
}

void tst_PropertyListSchema::schemaNamesEveryHint()
{
    const QStringList hints{
        kPropertyHintEnabled,
        kPropertyHintFullWidth,
        kPropertyHintForeground,
        kPropertyHintBackground,
        kPropertyHintFont,
        kPropertyHintAlignment,
        kPropertyHintOrientation,
        kPropertyHintSize,
        kPropertyHintMinimumSize,
        kPropertyHintMaximumSize,
        kPropertyHintWidget,
        kPropertyHintPreferencesKey,
        kPropertyHintStyleSheet,
        kPropertyHintTabPosition,
        kPropertyHintValues,
        kPropertyHintDisplayValues,
        kPropertyHintShowMultipleCheck,
        kPropertyHintShowSliders,
        kPropertyHintLogarithmicSlider,
        kPropertyHintDisplayScale,
        kPropertyHintAspectRatio,
        kPropertyHintFullSize,
        kPropertyHintBoolHideLabel,
        kPropertyHintXfrmNoRotation,
        kPropertyHintXfrmNoPosition,
        kPropertyHintXfrmNoScale,
        kPropertyHintFloatDecimals,
        kPropertyHintSuffix,
        kPropertyHintXfrmUniformScale,
        kPropertyHintXfrmCollapsibleScale,
        kPropertyHintUseNativeDialogs,
        kHostHintTextures,
        kHostHintHelp,
        kHostHintVisibleWhen,
        kHostHintEnabledWhen,
        kHostHintMinimumFollows,
        kHostHintMaximumFollows,
    };
    const QJsonObject named = definition("hints").value(QLatin1String("properties")).toObject();

    QCOMPARE(sorted(named.keys()), sorted(hints));
}

QTEST_MAIN(tst_PropertyListSchema)
#include "tst_PropertyListSchema.moc"
