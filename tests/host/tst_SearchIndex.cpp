#include <host/SearchIndex_p.h>
#include <host/SearchText_p.h>

#include <QTest>

using namespace Tessark::PropertyHost;

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_SearchIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldsTexts_data();
    void foldsTexts();
    void wordsAreApart_data();
    void wordsAreApart();
    void findsAllWords_data();
    void findsAllWords();
    void wordIsNotSplitOverTexts();
    void textsAreReplaced();
    void rowWithoutTextsMatchesNoWord();
    void findsParts_data();
    void findsParts();
};

void tst_SearchIndex::foldsTexts_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("folded");

    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("upper case") << text("Frame RATE") << text("frame rate");
    QTest::newRow("accents") << text("Éclat naïf") << text("eclat naif");
    QTest::newRow("accents apart") << text("E\u0301clat") << text("eclat");
    QTest::newRow("sharp s") << text("GRÖßE Straße") << text("grosse strasse");
    QTest::newRow("ligature") << text("ﬁlter") << text("filter");
    QTest::newRow("wide forms") << text("ＡＢＣ") << text("abc");
    QTest::newRow("dotted I") << text("İstanbul") << text("istanbul");
    QTest::newRow("final sigma") << text("ΛΟΓΟΣ λόγος") << text("λογοσ λογοσ");
    QTest::newRow("Hebrew points") << text("שָׁלוֹם") << text("שלום");
    // These are other letters, or other syllables.
    QTest::newRow("voiced kana") << text("が")
                                 << text("が").normalized(QString::NormalizationForm_KD);
    QTest::newRow("virama") << text("क्") << text("क्");
    QTest::newRow("beyond the first plane") << text("\U00010400x") << text("\U00010428x");
    QTest::newRow("half a pair") << QString(QChar(0xD801)) + text("A") << text("\uFFFDa");
}

void tst_SearchIndex::foldsTexts()
{
    QFETCH(QString, written);
    QTEST(foldedForSearch(written), "folded");
}

void tst_SearchIndex::wordsAreApart_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QStringList>("words");

    QTest::newRow("nothing") << QString() << QStringList();
    QTest::newRow("spaces") << text(" \t\u00A0") << QStringList();
    QTest::newRow("one") << text(" Frame ") << QStringList{text("frame")};
    QTest::newRow("two") << text("Frame \t rate") << QStringList{text("frame"), text("rate")};
    QTest::newRow("twice") << text("é E") << QStringList{text("e")};
    QTest::newRow("an accent alone") << text("a \u0301") << QStringList{text("a")};
}

void tst_SearchIndex::wordsAreApart()
{
    QFETCH(QString, written);
    QTEST(searchWords(written), "words");
}

void tst_SearchIndex::findsAllWords_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<bool>("found");

    QTest::newRow("no word") << QString() << true;
    QTest::newRow("part of a word") << text("ram") << true;
    QTest::newRow("in any order") << text("rate frame") << true;
    QTest::newRow("over texts") << text("second fps") << true;
    QTest::newRow("without its accent") << text("duree") << true;
    QTest::newRow("with an accent that is not there") << text("fràme") << true;
    QTest::newRow("one of two is missing") << text("frame rotation") << false;
    QTest::newRow("missing") << text("x") << false;
}

void tst_SearchIndex::findsAllWords()
{
    SearchIndex index(2);
    index.setTexts(1, {text("Frame Rate"), text("fps"), text("Pictures in a second, durée")});

    QFETCH(QString, search);
    QTEST(index.matches(1, searchWords(search)), "found");
}

void tst_SearchIndex::wordIsNotSplitOverTexts()
{
    SearchIndex index(1);
    index.setTexts(0, {text("frame"), text("rate")});

    QVERIFY(!index.matches(0, searchWords(text("framerate"))));
    QVERIFY(!index.matches(0, searchWords(text("frame\nx"))));
}

void tst_SearchIndex::textsAreReplaced()
{
    SearchIndex index(1);
    index.setTexts(0, {text("old")});
    index.setTexts(0, {text("new")});

    QVERIFY(!index.matches(0, {text("old")}));
    QVERIFY(index.matches(0, {text("new")}));
}

void tst_SearchIndex::rowWithoutTextsMatchesNoWord()
{
    SearchIndex index(1);

    QVERIFY(index.matches(0, {}));
    QVERIFY(!index.matches(0, {text("a")}));
}

void tst_SearchIndex::findsParts_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("marked"); // the label with brackets around the parts

    QTest::newRow("nowhere") << text("Rate") << text("x") << text("Rate");
    QTest::newRow("no word") << text("Rate") << QString() << text("Rate");
    QTest::newRow("all") << text("Rate") << text("rate") << text("[Rate]");
    QTest::newRow("twice") << text("banana") << text("an") << text("b[anan]a");
    QTest::newRow("apart") << text("an apple and") << text("an") << text("[an] apple [an]d");
    QTest::newRow("overlap") << text("frames") << text("fram rame") << text("[frame]s");
    QTest::newRow("one in the other") << text("frames") << text("frame ram") << text("[frame]s");
    QTest::newRow("accent") << text("Durée:") << text("duree") << text("[Durée]:");
    QTest::newRow("accent apart") << text("Dure\u0301e:") << text("re") << text("Du[re\u0301]e:");
    QTest::newRow("half of a sharp s") << text("Größe") << text("gros") << text("[Größ]e");
    QTest::newRow("behind a pair") << text("\U00010400bc") << text("b") << text("\U00010400[b]c");
    QTest::newRow("a pair") << text("a\U00010400c") << text("\U00010428") << text("a[\U00010400]c");
}

void tst_SearchIndex::findsParts()
{
    QFETCH(QString, label);
    QFETCH(QString, search);

    const QVector<TextPart> parts = partsWithWords(label, searchWords(search));

    QString marked = label;
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        marked.insert(part->begin + part->length, QLatin1Char(']'));
        marked.insert(part->begin, QLatin1Char('['));
    }
    QTEST(marked, "marked");
}

QTEST_APPLESS_MAIN(tst_SearchIndex)
#include "tst_SearchIndex.moc"
