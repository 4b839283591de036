#include <core/FilenameField.h>
#include <host/InputFile.h>
#include <host/NumberExpression.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <host/RelativeEdit.h>
#include <property/PropertyUI.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTest>
#include <QThread>
#include <QToolButton>
#include <QTranslator>

#include <memory>

using namespace Tessark;

/// The texts of the libraries in the languages that they are translated to.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void eachLibraryHasItsTranslations_data();
    void eachLibraryHasItsTranslations();
    void othersReadEnglish_data();
    void othersReadEnglish();
    void translatorOfTheHostWins();
    void languageMayChangeAtRunTime();
    void widgetsFollowTheLanguageChange();
    void plurals_data();
    void plurals();
    void messagesAreTranslatedWithTheirNumbers();
    void mistakesAreToldInTheLanguage_data();
    void mistakesAreToldInTheLanguage();
    void mistakesAreCounted_data();
    void mistakesAreCounted();
    void mistakesAreToldInOtherThreads();
};

namespace {

QString inCore()
{
    return QCoreApplication::translate("Tessark::UI::ColorControl", "Green");
}

QString inProperty()
{
    return PropertyUI::PropertyEditorPanel::tr("Set to Default");
}

QString inHost()
{
    return QCoreApplication::translate("Tessark::PropertyHost::SelectionMarks", "Several values");
}

PropertyHost::PropertyListResult readRows(const QByteArray &rows)
{
    return PropertyHost::readPropertyList(R"({"version": 1, "properties": [)" + rows + "]}");
}

/// As they are listed for a file.
QString told(const QVector<PropertyHost::Problem> &problems)
{
    QStringList lines;
    for (const PropertyHost::Problem &problem : problems)
        lines.append(problem.toString(QStringLiteral("f")));
    return lines.join(QLatin1Char('\n'));
}

QString mistakeInList()
{
    return told(readRows(R"({"name": "on", "type": "bool", "default": "yes"})").problems);
}

QString mistakeInValues()
{
    const auto rows = readRows(R"({"name": "n", "type": "int", "min": 0, "max": 5})");
    PropertyHost::PropertyStore store;
    return told(store.readValues(R"({"n": 6})", rows.list));
}

QString mistakeInRule()
{
    return told(readRows(R"({"name": "mode", "type": "bool"},
        {"name": "b", "type": "bool", "hints": {"visible_when": "mdoe"}})")
                    .problems);
}

QString mistakeInFile()
{
    QVector<PropertyHost::Problem> problems;
    PropertyHost::readInputFile(QStringLiteral("/"), problems);
    return told(problems);
}

QString refusedEdit()
{
    const PropertyUI::Property property(QStringLiteral("a"), QString(),
                                        PropertyUI::kPropertyTypeInteger);
    QString error;
    PropertyHost::applyRelativeEdit(property, QStringLiteral("x"),
                                    {PropertyHost::RelativeOperation::Add, 1}, error);
    return error;
}

class HostTranslator final : public QTranslator
{
public:
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(sourceText, "Set to Default") == 0 ? QStringLiteral("of the host")
                                                          : QString();
    }
};

} // namespace

void tst_Translations::eachLibraryHasItsTranslations_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QStringList>("texts");

    const QStringList german = {QString::fromUtf8("Grün"),
                                QStringLiteral("Auf Standardwert setzen"),
                                QStringLiteral("Mehrere Werte")};
    QTest::newRow("German") << QLocale(QLocale::German) << german;
    QTest::newRow("German of another country")
        << QLocale(QLocale::German, QLocale::Austria) << german;
    QTest::newRow("French") << QLocale(QLocale::French)
                            << QStringList{QStringLiteral("Vert"),
                                           QString::fromUtf8("Rétablir la valeur par défaut"),
                                           QStringLiteral("Plusieurs valeurs")};
    QTest::newRow("Japanese") << QLocale(QLocale::Japanese)
                              << QStringList{QString::fromUtf8("緑"),
                                             QString::fromUtf8("既定値に戻す"),
                                             QString::fromUtf8("複数の値")};
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic)
                            << QStringList{QString::fromUtf8("أخضر"),
                                           QString::fromUtf8("تعيين القيمة الافتراضية"),
                                           QString::fromUtf8("قيم متعددة")};
}

void tst_Translations::eachLibraryHasItsTranslations()
{
    QFETCH(QLocale, locale);
    QFETCH(QStringList, texts);

    QLocale::setDefault(locale);

    QCOMPARE((QStringList{inCore(), inProperty(), inHost()}), texts);
}

void tst_Translations::othersReadEnglish_data()
{
    QTest::addColumn<QLocale>("locale");

    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("the C locale") << QLocale::c();
    QTest::newRow("a language without translation") << QLocale(QLocale::Polish);
}

void tst_Translations::othersReadEnglish()
{
    QFETCH(QLocale, locale);

    QLocale::setDefault(locale);

    QCOMPARE((QStringList{inCore(), inProperty(), inHost()}),
             (QStringList{QStringLiteral("Green"), QStringLiteral("Set to Default"),
                          QStringLiteral("Several values")}));
}

void tst_Translations::translatorOfTheHostWins()
{
    QLocale::setDefault(QLocale(QLocale::German));
    HostTranslator translator;

    QCoreApplication::installTranslator(&translator);
    QCOMPARE(inProperty(), QStringLiteral("of the host"));
    QCOMPARE(inHost(), QStringLiteral("Mehrere Werte")); // which it does not have

    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(inProperty(), QStringLiteral("Auf Standardwert setzen"));
}

void tst_Translations::languageMayChangeAtRunTime()
{
    for (int i = 0; i < 2; ++i) {
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(inHost(), QStringLiteral("Mehrere Werte"));
        QLocale::setDefault(QLocale(QLocale::French));
        QCOMPARE(inHost(), QStringLiteral("Plusieurs valeurs"));
        QLocale::setDefault(QLocale::c());
        QCOMPARE(inHost(), QStringLiteral("Several values"));
    }
}

void tst_Translations::widgetsFollowTheLanguageChange()
{
    UI::FilenameField field(nullptr, QFileDialog::ExistingFile, false);
    const auto *const button = field.findChild<QAbstractButton *>();
    QCOMPARE(button->accessibleName(), QStringLiteral("Browse"));
    QLocale::setDefault(QLocale(QLocale::German));

    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&field, &change);

    QCOMPARE(button->accessibleName(), QStringLiteral("Durchsuchen"));
}

void tst_Translations::plurals_data()
{
    QTest::addColumn<QLocale::Language>("language");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, QLocale::Language language, int count, const char *text) {
        QTest::addRow("%s %d", name, count) << language << count << QString::fromUtf8(text);
    };

    row("English", QLocale::English, 1, "The expression is nested more than 1 level deep");
    row("English", QLocale::English, 2, "The expression is nested more than 2 levels deep");
    row("other", QLocale::Polish, 1, "The expression is nested more than 1 level deep");
    row("German", QLocale::German, 1, "Der Ausdruck ist mehr als 1 Ebene tief verschachtelt");
    row("German", QLocale::German, 50, "Der Ausdruck ist mehr als 50 Ebenen tief verschachtelt");
    row("French", QLocale::French, 0, "L’expression est imbriquée sur plus de 0 niveau");
    row("French", QLocale::French, 2, "L’expression est imbriquée sur plus de 2 niveaux");
    row("Japanese", QLocale::Japanese, 1, "式の入れ子が 1 段を超えています");
    row("Japanese", QLocale::Japanese, 50, "式の入れ子が 50 段を超えています");
    row("Arabic", QLocale::Arabic, 0, "التعبير متداخل بعمق يزيد على 0 مستوى");
    row("Arabic", QLocale::Arabic, 1, "التعبير متداخل بعمق يزيد على مستوى واحد");
    row("Arabic", QLocale::Arabic, 2, "التعبير متداخل بعمق يزيد على مستويين");
    row("Arabic", QLocale::Arabic, 3, "التعبير متداخل بعمق يزيد على 3 مستويات");
    row("Arabic", QLocale::Arabic, 11, "التعبير متداخل بعمق يزيد على 11 مستوى");
    row("Arabic", QLocale::Arabic, 100, "التعبير متداخل بعمق يزيد على 100 مستوى");
}

void tst_Translations::plurals()
{
    QFETCH(QLocale::Language, language);
    QFETCH(int, count);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(language));

    QCOMPARE(QCoreApplication::translate("Tessark::PropertyHost::NumberExpression",
                                         "The expression is nested more than %n levels deep",
                                         nullptr, count),
             text);
}

void tst_Translations::messagesAreTranslatedWithTheirNumbers()
{
    QLocale::setDefault(QLocale(QLocale::German));

    const PropertyHost::NumberExpression expression(QString(501, QLatin1Char('1')));

    QCOMPARE(expression.errorText(), QString::fromUtf8("Der Ausdruck ist länger als 500 Zeichen"));
}

void tst_Translations::mistakesAreToldInTheLanguage_data()
{
    QTest::addColumn<QLocale::Language>("language");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, QLocale::Language language, QString (*mistake)(),
                        const char *text) {
        QLocale::setDefault(QLocale(language));
        QTest::newRow(name) << language << mistake() << QString::fromUtf8(text);
        QLocale::setDefault(QLocale::c());
    };

    row("list", QLocale::German, mistakeInList,
        "f: Fehler: /properties/0/default: erwartet: ein boolescher Wert, gefunden: eine "
        "Zeichenkette");
    row("value", QLocale::German, mistakeInValues,
        "f: Warnung: /n: 6 liegt außerhalb des Bereichs");
    row("rule", QLocale::German, mistakeInRule,
        "f: Fehler: /properties/1/hints/visible_when: Zeichen 1: es gibt keine Eigenschaft "
        "\"mdoe\" (meinten Sie \"mode\"?)");
    row("file", QLocale::German, mistakeInFile,
        "f: Fehler: kann nicht gelesen werden: Es ist ein Verzeichnis");
    row("edit", QLocale::German, refusedEdit, "der Wert passt nicht, erwartet: eine ganze Zahl");
    row("French", QLocale::French, mistakeInList,
        "f: erreur : /properties/0/default: attendu : un booléen, trouvé : une chaîne");
    row("Japanese", QLocale::Japanese, mistakeInList,
        "f: エラー: /properties/0/default: 必要: 真偽値、実際: 文字列");
    row("Arabic", QLocale::Arabic, mistakeInList,
        "f: خطأ: /properties/0/default: المتوقع: قيمة منطقية، والموجود: سلسلة نصية");
    row("English", QLocale::English, mistakeInList,
        "f: error: /properties/0/default: expected a boolean, found a string");
}

void tst_Translations::mistakesAreToldInTheLanguage()
{
    QFETCH(QString, told);
    QFETCH(QString, text);

    QCOMPARE(told, text);
}

void tst_Translations::mistakesAreCounted_data()
{
    QTest::addColumn<QLocale::Language>("language");
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, QLocale::Language language, const char *values,
                        const char *text) {
        QTest::newRow(name) << language << QByteArray(values) << QString::fromUtf8(text);
    };

    row("English, one", QLocale::English, "1", "1 value for 2 \"display_values\"");
    row("English, three", QLocale::English, "1, 2, 3", "3 values for 2 \"display_values\"");
    row("German, one", QLocale::German, "1", "1 Wert für 2 \"display_values\"");
    row("German, three", QLocale::German, "1, 2, 3", "3 Werte für 2 \"display_values\"");
    row("Arabic, none", QLocale::Arabic, "", "لا قيم مقابل 2 \"display_values\"");
    row("Arabic, one", QLocale::Arabic, "1", "قيمة واحدة مقابل 2 \"display_values\"");
    row("Arabic, three", QLocale::Arabic, "1, 2, 3", "3 قيم مقابل 2 \"display_values\"");
}

void tst_Translations::mistakesAreCounted()
{
    QFETCH(QLocale::Language, language);
    QFETCH(QByteArray, values);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(language));

    const auto result = readRows(R"({"name": "a", "type": "int/enum", "hints": {"values": [)"
                                 + values + R"(], "display_values": ["x", "y"]}})");

    QCOMPARE(int(result.problems.size()), 1);
    QCOMPARE(result.problems.first().message, text);
}

void tst_Translations::mistakesAreToldInOtherThreads()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QString here = mistakeInRule();
    QString there;

    const std::unique_ptr<QThread> thread(QThread::create([&there] { there = mistakeInRule(); }));
    thread->start();
    QVERIFY(thread->wait());

    QVERIFY(here.contains(QStringLiteral("es gibt keine Eigenschaft")));
    QCOMPARE(there, here);
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
