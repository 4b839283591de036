#include <host/PropertyListReader.h>
#include <property/PropertyUI.h>

#include <support/Registry.h>

#include <QFile>
#include <QSet>
#include <QTest>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::PropertyListResult;

/// The list that property-panel shows on its own is to show all that the library can do.
class tst_BuiltInList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hasNoProblems();
    void everyTypeIsUsed();
    void everyHintIsUsed_data();
    void everyHintIsUsed();
    void everyRowHasItsDefault();

private:
    PropertyListResult m_result;
};

void tst_BuiltInList::initTestCase()
{
    QFile file(QStringLiteral(":/property-panel/builtin.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_result =
        Tessark::PropertyHost::readPropertyList(file.readAll(), QStringLiteral(":/property-panel"));
}

void tst_BuiltInList::hasNoProblems()
{
    QStringList problems;
    for (const auto &problem : std::as_const(m_result.problems))
        problems.append(problem.toString(QStringLiteral("list")));

    QCOMPARE(problems, QStringList());
}

void tst_BuiltInList::everyTypeIsUsed()
{
    QSet<QString> unused;
    for (const LibraryEditor &editor : libraryEditors())
        unused.insert(editor.type);
    for (const Property *property : m_result.list.properties())
        unused.remove(property->type);

    QCOMPARE(unused.values(), QStringList());
}

void tst_BuiltInList::everyHintIsUsed_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("hint");
    const auto row = [](const QString &type, const QString &hint) {
        QTest::addRow("%s of %s", qPrintable(hint), qPrintable(type)) << type << hint;
    };
    row(kPropertyTypeBoolean, kPropertyHintEnabled);
    row(kPropertyTypeString, kPropertyHintEnabled);
    row(kPropertyTypeInteger, kPropertyHintEnabled);
    row(kPropertyTypeStaticText, kPropertyHintFullWidth);
    row(kPropertyTypeText, kPropertyHintFont);
    row(kPropertyTypeText, kPropertyHintSize);
    row(kPropertyTypeAction, kPropertyHintStyleSheet);
    row(kPropertyTypeStaticText, kPropertyHintAlignment);
    row(kPropertyTypeImage, kPropertyHintAlignment);
    row(kPropertyTypeBoolean, kPropertyHintBoolHideLabel);
    row(kPropertyTypeFilename, kPropertyHintUseNativeDialogs);
    row(kPropertyTypeBeginTabGroup, kPropertyHintTabPosition);
    row(kPropertyTypeEnumeration, kPropertyHintDisplayValues);
    row(kPropertyTypeEnumeration, kPropertyHintValues);
    row(kPropertyTypeEnumeration, kPropertyHintWidget);
    row(kPropertyTypeFloat, kPropertyHintSuffix);
    row(kPropertyTypeFloat, kPropertyHintFloatDecimals);
    row(kPropertyTypeFloat, kPropertyHintDisplayScale);
    row(kPropertyTypeFloat, kPropertyHintLogarithmicSlider);
    row(kPropertyTypeVec3, kPropertyHintShowSliders);
    row(kPropertyTypeVec3, kPropertyHintShowMultipleCheck);
    row(kPropertyTypeSize, kPropertyHintAspectRatio);
    row(kPropertyTypeRenderSize, kPropertyHintAspectRatio);
    row(kPropertyTypeRenderSize, kPropertyHintFullSize);
    row(kPropertyTypeTransform2D, kPropertyHintXfrmNoRotation);
    row(kPropertyTypeTransform2D, kPropertyHintXfrmNoPosition);
    row(kPropertyTypeTransform2D, kPropertyHintXfrmNoScale);
    row(kPropertyTypeTransform2D, kPropertyHintXfrmUniformScale);
    row(kPropertyTypeTransform2D, kPropertyHintXfrmCollapsibleScale);
    row(kPropertyTypeTexture, QStringLiteral("textures"));
}

void tst_BuiltInList::everyHintIsUsed()
{
    QFETCH(QString, type);
    QFETCH(QString, hint);

    const auto properties = m_result.list.properties();
    QVERIFY(std::any_of(properties.cbegin(), properties.cend(), [&](const Property *property) {
        return property->type == type && property->hints.contains(hint);
    }));
}

/// Rows without default would start empty, and have no "Set to Default".
void tst_BuiltInList::everyRowHasItsDefault()
{
    const QSet<QString> without{kPropertyTypeAction,        kPropertyTypeSeparator,
                                kPropertyTypeBeginGroup,    kPropertyTypeEndGroup,
                                kPropertyTypeBeginTabGroup, kPropertyTypeTab,
                                kPropertyTypeEndTabGroup};
    for (const Property *property : m_result.list.properties()) {
        if (!without.contains(property->type))
            QVERIFY2(property->defaultValue.isValid(), qPrintable(property->name));
    }
}

QTEST_MAIN(tst_BuiltInList)
#include "tst_BuiltInList.moc"
