#include "property/PropertyEditorRegistry.h"

#include "property/PropertyEditorPanel.h"
#include "support/RecordingEditor.h"
#include "support/Registry.h"

#include <QTest>

#include <memory>

using namespace Tessark::PropertyUI;

namespace {

PropertyEditor *otherFactory(Property *property)
{
    return new RecordingEditor(property);
}

/// Registers a factory and puts back the one before at the end of the scope.
class ScopedFactory
{
public:
    ScopedFactory(const QString &type, PropertyEditorRegistry::Factory factory)
        : m_type(type)
        , m_before(factoryOf(type))
    {
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type, factory);
    }

    ~ScopedFactory()
    {
        PropertyEditorRegistry::Instance()->registerPropertyEditor(m_type, m_before);
    }

    Q_DISABLE_COPY(ScopedFactory)

private:
    QString m_type;
    PropertyEditorRegistry::Factory m_before;
};

} // namespace

class tst_PropertyEditorRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void thereIsOneRegistry();
    void libraryTypeHasItsEditor_data();
    void libraryTypeHasItsEditor();
    void simpleEditorAddsNoSignalsOrSlots_data();
    void simpleEditorAddsNoSignalsOrSlots();
    void typeWithoutEditor_data();
    void typeWithoutEditor();
    void nullPropertyHasNoFactory();
    void unknownTypeMayBeRegisteredAfterwards();
    void lastRegistrationWins();
    void nullTakesTheEditorAway();
    void typesDoNotDisturbEachOther();
    void nextPanelUsesTheReplacement();
    void panelMakesNothingOfAnUnknownType();
};

void tst_PropertyEditorRegistry::initTestCase()
{
    PropertyEditorPanel::InitialiseRegistry();
}

void tst_PropertyEditorRegistry::thereIsOneRegistry()
{
    QVERIFY(PropertyEditorRegistry::Instance());
    QCOMPARE(PropertyEditorRegistry::Instance(), PropertyEditorRegistry::Instance());
}

void tst_PropertyEditorRegistry::libraryTypeHasItsEditor_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("className");
    for (const LibraryEditor &editor : libraryEditors())
        QTest::newRow(qPrintable(editor.type)) << editor.type << QByteArray(editor.className);
}

void tst_PropertyEditorRegistry::libraryTypeHasItsEditor()
{
    QFETCH(QString, type);
    QFETCH(QByteArray, className);
    Property property(QStringLiteral("item"), QStringLiteral("Label"), type);
    const auto factory = PropertyEditorRegistry::Instance()->factory(&property);
    QVERIFY(factory);

    const std::unique_ptr<PropertyEditor> editor(factory(&property));
    const std::unique_ptr<PropertyEditor> second(factory(&property));

    QCOMPARE(QByteArray(editor->metaObject()->className()), className);
    QCOMPARE(editor->editedProperty(), &property);
    QCOMPARE(editor->parent(), nullptr);
    QVERIFY(second.get() != editor.get());
}

void tst_PropertyEditorRegistry::simpleEditorAddsNoSignalsOrSlots_data()
{
    QTest::addColumn<QString>("type");
    const QStringList simple = {
        kPropertyTypeAction,     kPropertyTypeBoolean,       kPropertyTypeString,
        kPropertyTypeText,       kPropertyTypeStaticText,    kPropertyTypeFilename,
        kPropertyTypeBeginGroup, kPropertyTypeBeginTabGroup, kPropertyTypeSeparator,
    };
    for (const LibraryEditor &editor : libraryEditors()) {
        if (simple.contains(editor.type))
            QTest::newRow(qPrintable(editor.type)) << editor.type;
    }
}

void tst_PropertyEditorRegistry::simpleEditorAddsNoSignalsOrSlots()
{
    QFETCH(QString, type);
    Property property(QStringLiteral("item"), QStringLiteral("Label"), type);
    const std::unique_ptr<PropertyEditor> editor(factoryOf(type)(&property));

    const QMetaObject *meta = editor->metaObject();

    QCOMPARE(meta->superClass(), &PropertyEditor::staticMetaObject);
    QCOMPARE(meta->methodCount(), PropertyEditor::staticMetaObject.methodCount());
}

void tst_PropertyEditorRegistry::typeWithoutEditor_data()
{
    QTest::addColumn<QString>("type");
    const QString types[] = {
        kPropertyTypeNone,
        kPropertyTypeColorRGB,
        kPropertyTypePoint,
        kPropertyTypePointF,
        kPropertyTypeAngle,
        kPropertyTypeSizeF,
        kPropertyTypeRect,
        kPropertyTypeRectF,
        QStringLiteral(""),
        QString(),
        QStringLiteral("Float"),
        QStringLiteral("Bool"),
        QStringLiteral("bool "),
        QStringLiteral("int "),
        QStringLiteral(" string"),
        QStringLiteral("int/"),
        QStringLiteral("string/other"),
        QStringLiteral("tex"),
    };
    for (const QString &type : types)
        QTest::addRow("'%s'", qPrintable(type)) << type;
}

void tst_PropertyEditorRegistry::typeWithoutEditor()
{
    QFETCH(QString, type);

    QVERIFY(!factoryOf(type));
    QVERIFY(!factoryOf(type)); // nor does having asked before make a difference
}

void tst_PropertyEditorRegistry::nullPropertyHasNoFactory()
{
    QVERIFY(!PropertyEditorRegistry::Instance()->factory(nullptr));
}

void tst_PropertyEditorRegistry::unknownTypeMayBeRegisteredAfterwards()
{
    const QString type = QStringLiteral("host/late");
    QVERIFY(!factoryOf(type));

    const ScopedFactory registered(type, RecordingEditor::Factory);

    QVERIFY(factoryOf(type) == &RecordingEditor::Factory);
}

void tst_PropertyEditorRegistry::lastRegistrationWins()
{
    const QString type = QStringLiteral("host/twice");

    const ScopedFactory first(type, RecordingEditor::Factory);
    const ScopedFactory second(type, otherFactory);

    QVERIFY(factoryOf(type) == &otherFactory);
}

void tst_PropertyEditorRegistry::nullTakesTheEditorAway()
{
    QVERIFY(factoryOf(kPropertyTypeBoolean));

    const ScopedFactory none(kPropertyTypeBoolean, nullptr);

    QVERIFY(!factoryOf(kPropertyTypeBoolean));
}

void tst_PropertyEditorRegistry::typesDoNotDisturbEachOther()
{
    const auto before = factoryOf(kPropertyTypeString);

    const ScopedFactory first(QStringLiteral("String"), RecordingEditor::Factory);
    const ScopedFactory second(QStringLiteral("string "), otherFactory);

    QVERIFY(before);
    QVERIFY(factoryOf(kPropertyTypeString) == before);
    QVERIFY(factoryOf(QStringLiteral("String")) == &RecordingEditor::Factory);
    QVERIFY(factoryOf(QStringLiteral("string ")) == &otherFactory);
}

void tst_PropertyEditorRegistry::nextPanelUsesTheReplacement()
{
    Property property(QStringLiteral("item"), QStringLiteral("Label"), kPropertyTypeFloat);
    const ScopedFactory replacement(kPropertyTypeFloat, RecordingEditor::Factory);

    const PropertyEditorPanel panel({&property}, nullptr, nullptr);

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, kPropertyTypeFloat);
    QCOMPARE(editors.size(), 1);
    QVERIFY(dynamic_cast<RecordingEditor *>(editors.first()));
}

void tst_PropertyEditorRegistry::panelMakesNothingOfAnUnknownType()
{
    Property property(QStringLiteral("item"), QStringLiteral("Label"), kPropertyTypeColorRGB);

    const PropertyEditorPanel panel({&property}, nullptr, nullptr);

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, QString());
    QVERIFY(editors.isEmpty());
    QVERIFY(panel.findChildren<QWidget *>().isEmpty());
}

QTEST_MAIN(tst_PropertyEditorRegistry)
#include "tst_PropertyEditorRegistry.moc"
