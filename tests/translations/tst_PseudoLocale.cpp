#include <host/PropertyPanelView.h>
#include <property/PropertyUI.h>
#include <tools/property-panel/Input.h>
#include <tools/property-panel/PanelWindow.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <memory>

using namespace Tessark::PropertyPanel;
using Tessark::PropertyHost::PropertyPanelView;

/// The program's window, with rows of all types, in a language that shows what is not translated and
/// what has no room in another language.
class tst_PseudoLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void allTextsAreTranslated();
    void noTextIsCutOff();
    void findsWhatIsNot();

private:
    QStringList untranslated() const;
    QStringList cutOff() const;
    bool isOfTheList(const QString &text) const;

    std::unique_ptr<QTranslator> m_translator;
    Input m_input;
    QSet<QString> m_listTexts;
    std::unique_ptr<PanelWindow> m_window;
};

namespace {

const QChar kOurs(0x27e6); // in front of each text of ours
const QChar kOfQt(0x27ea); // in front of each text of Qt
constexpr double kGrowth = 0.4;

/// Longer by two fifths and between brackets.
QString pseudoText(const QString &text, QChar bracket)
{
    const int more = int(kGrowth * double(text.size())) + 1;
    return bracket + text + QString(more, QLatin1Char('~')) + QChar(bracket.unicode() + 1);
}

class PseudoTranslator final : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        const bool isOurs = QByteArray(context).startsWith("Tessark::");
        // Which layouts and platforms read and nobody sees.
        if (!isOurs && (text.startsWith(QLatin1String("QT_")) || text.isEmpty()))
            return QString();
        return pseudoText(text, isOurs ? kOurs : kOfQt);
    }
};

void collectTexts(const QJsonValue &value, QSet<QString> &texts)
{
    if (value.isString())
        texts.insert(value.toString());
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array)
        collectTexts(entry, texts);
    const QJsonObject object = value.toObject();
    for (auto it = object.begin(); it != object.end(); ++it)
        collectTexts(it.value(), texts);
}

QStringList textsOf(const QWidget &widget)
{
    QStringList texts = {widget.toolTip(), widget.accessibleName(), widget.accessibleDescription()};
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        texts.append(label->text());
    if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
        texts.append(button->text());
    if (const auto *const line = qobject_cast<const QLineEdit *>(&widget))
        texts.append(line->placeholderText());
    if (const auto *const edit = qobject_cast<const QPlainTextEdit *>(&widget))
        texts.append(edit->placeholderText());
    if (const auto *const box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
    }
    if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append({tabs->tabText(i), tabs->tabToolTip(i)});
    }
    return texts;
}

bool isWord(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); });
}

bool isTranslated(const QString &text)
{
    return text.contains(kOurs) || text.contains(kOfQt);
}

/// Whether it shows a text that has to be seen whole.
bool isText(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return (label && !label->wordWrap() && !label->text().isEmpty())
           || (button && !button->text().isEmpty());
}

} // namespace

void tst_PseudoLocale::initTestCase()
{
    m_translator = std::make_unique<PseudoTranslator>();
    QCoreApplication::installTranslator(m_translator.get());
    m_input = readInput(Options());
    QVERIFY(!m_input.hasErrors);
    collectTexts(m_input.list.toJson(), m_listTexts);
    m_listTexts +=
        {QStringLiteral("tiff"), QStringLiteral("bmp")}; // formats are called so everywhere
    m_window =
        std::make_unique<PanelWindow>(m_input.list, m_input.store.get(), ValuesWriter(QString()));
    m_window->resize(m_window->sizeHint().expandedTo(QSize(1600, 800)));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_PseudoLocale::cleanupTestCase()
{
    m_window.reset();
    QCoreApplication::removeTranslator(m_translator.get());
}

bool tst_PseudoLocale::isOfTheList(const QString &text) const
{
    QString plain = text;
    plain.remove(QLatin1Char('&'));
    const bool isLabel = plain.endsWith(QLatin1Char(':')) && m_listTexts.contains(plain.chopped(1));
    return isLabel || m_listTexts.contains(plain);
}

QStringList tst_PseudoLocale::untranslated() const
{
    QStringList found;
    const auto widgets = m_window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QStringList texts = textsOf(*widget);
        for (const QString &text : texts) {
            if (isWord(text) && !isTranslated(text) && !isOfTheList(text))
                found.append(QString::fromLatin1(widget->metaObject()->className())
                             + QLatin1String(": ") + text);
        }
    }
    return found;
}

/// On all tab pages.
QStringList tst_PseudoLocale::cutOff() const
{
    QStringList found;
    const auto groups = m_window->findChildren<QTabWidget *>();
    int pages = 1;
    for (const QTabWidget *group : groups)
        pages = std::max(pages, group->count());
    for (int page = 0; page < pages; ++page) {
        for (QTabWidget *group : groups)
            group->setCurrentIndex(page);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const auto widgets = m_window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->isVisible() && isText(*widget)
                && widget->width() < widget->sizeHint().width())
                found.append(textsOf(*widget).join(QString()));
        }
    }
    return found;
}

void tst_PseudoLocale::allTextsAreTranslated()
{
    const QStringList found = untranslated();

    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_PseudoLocale::noTextIsCutOff()
{
    const QStringList found = cutOff();

    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

/// The checks above can fail.
void tst_PseudoLocale::findsWhatIsNot()
{
    auto *const label = new QLabel(QStringLiteral("Not translated"), m_window.get());
    label->resize(10, 10);
    label->show();

    QCOMPARE(untranslated(), QStringList(QStringLiteral("QLabel: Not translated")));
    QVERIFY(cutOff().contains(QStringLiteral("Not translated")));
    label->setText(pseudoText(QStringLiteral("Translated"), kOurs));
    QCOMPARE(untranslated(), QStringList());
    delete label;
}

QTEST_MAIN(tst_PseudoLocale)
#include "tst_PseudoLocale.moc"
