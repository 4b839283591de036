#include "support/PseudoLocale.h"

#include <tools/property-panel/Input.h>
#include <tools/property-panel/PanelWindow.h>

#include <QAbstractButton>
#include <QApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QSet>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace Tessark::PropertyPanel;
using TestSupport::pseudoText;
using TestSupport::PseudoTranslator;
using TestSupport::UntranslatedTexts;

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
    QStringList cutOff() const;

    std::unique_ptr<PseudoTranslator> m_translator;
    Input m_input;
    std::unique_ptr<UntranslatedTexts> m_untranslated;
    std::unique_ptr<PanelWindow> m_window;
};

namespace {

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

/// That has to be seen whole, or an empty one.
QString textOf(const QWidget &widget)
{
    if (const auto *const label = qobject_cast<const QLabel *>(&widget))
        return label->wordWrap() ? QString() : label->text();
    const auto *const button = qobject_cast<const QAbstractButton *>(&widget);
    return button ? button->text() : QString();
}

} // namespace

void tst_PseudoLocale::initTestCase()
{
    m_translator = std::make_unique<PseudoTranslator>();
    m_input = readInput(Options());
    QVERIFY(!m_input.hasErrors);
    QSet<QString> listTexts = {QStringLiteral("tiff"),
                               QStringLiteral("bmp")}; // formats are called so everywhere
    collectTexts(m_input.list.toJson(), listTexts);
    m_untranslated = std::make_unique<UntranslatedTexts>(listTexts);
    m_window =
        std::make_unique<PanelWindow>(m_input.list, m_input.store.get(), ValuesWriter(QString()));
    m_window->resize(m_window->sizeHint().expandedTo(QSize(1600, 800)));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_PseudoLocale::cleanupTestCase()
{
    m_window.reset();
    m_translator.reset();
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
            if (widget->isVisible() && !textOf(*widget).isEmpty()
                && widget->width() < widget->sizeHint().width())
                found.append(textOf(*widget));
        }
    }
    return found;
}

void tst_PseudoLocale::allTextsAreTranslated()
{
    const QStringList found = m_untranslated->in(*m_window);

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

    QCOMPARE(m_untranslated->in(*m_window), QStringList(QStringLiteral("QLabel: Not translated")));
    QVERIFY(cutOff().contains(QStringLiteral("Not translated")));
    label->setText(pseudoText(QStringLiteral("Translated")));
    QCOMPARE(m_untranslated->in(*m_window), QStringList());
    delete label;
}

QTEST_MAIN(tst_PseudoLocale)
#include "tst_PseudoLocale.moc"
