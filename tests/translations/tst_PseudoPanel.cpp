#include "support/Events.h"
#include "support/EveryTypeRows.h"
#include "support/MenuProbe.h"
#include "support/PseudoLocale.h"
#include "support/TextInspection.h"

#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/SelectionDelegate.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QUndoStack>

#include <array>
#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::EveryTypeRows;
using TestSupport::pseudoText;
using TestSupport::PseudoTranslator;
using TestSupport::settleEvents;
using TestSupport::TextInspection;
using TestSupport::UntranslatedTexts;

#define VERIFY_EMPTY(faults)                                                                       \
    do {                                                                                           \
        const QStringList found = (faults);                                                        \
        QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));                      \
    } while (false)

/// A view with rows of all types and what belongs to it, in a language that shows what is not
/// translated and what has no room in another language. Two objects are edited, which differ in some
/// rows.
class tst_PseudoPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasAllTypes();
    void rows();
    void menuOfThePlainPanel();
    void searchBar_data();
    void searchBar();
    void menus_data();
    void menus();
    void dialogs_data();
    void dialogs();
    void previewOfANumber_data();
    void previewOfANumber();
    void findsWhatIsUntranslated();
    void findsWhatIsCutOff();

private:
    void show();
    QWidget *field(const char *name) const;
    QWidget *label(const char *name) const;
    QMenu *openMenu(QWidget *asked, QContextMenuEvent::Reason reason) const;
    QStringList faultsOf(const QWidget &window) const;
    QStringList faultsOnAllPages() const;

    std::unique_ptr<PseudoTranslator> m_translator;
    PropertyList m_list;
    std::unique_ptr<UntranslatedTexts> m_untranslated;
    std::array<PropertyStore, 2> m_objects;
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<SelectionDelegate> m_selection;
    std::unique_ptr<PropertyPanelView> m_view;
};

namespace {

constexpr int kNarrow = 420; // pixels; some messages are longer

QString text(const char *letters)
{
    return QString::fromUtf8(letters);
}

void collectTexts(const QVariant &value, QSet<QString> &texts)
{
    const QStringList all = value.toStringList(); // of one text too
    for (const QString &text : all) {
        const QStringList parts = text.split(QLatin1Char(','));
        for (const QString &part : parts)
            texts.insert(part.trimmed());
    }
}

/// What users read of a list is the host's, and so are the texts of its textures. Formats of pictures
/// are called the same everywhere.
QSet<QString> textsOf(const PropertyList &list)
{
    QSet<QString> texts = {text("Wood"), text("polished"), text("Sand"), text("png"),
                           text("jpeg"), text("tiff"),     text("bmp")};
    for (const Property *property : list.properties()) {
        collectTexts(property->label, texts);
        collectTexts(property->defaultValue, texts);
        for (const QVariant &hint : property->hints)
            collectTexts(hint, texts);
    }
    return texts;
}

} // namespace

void tst_PseudoPanel::init()
{
    QAccessible::setActive(true); // so that there are texts for assistive technology
    m_translator = std::make_unique<PseudoTranslator>();
    m_list = EveryTypeRows::list();
    m_untranslated = std::make_unique<UntranslatedTexts>(textsOf(m_list));
    m_stack = std::make_unique<QUndoStack>();
    m_selection = std::make_unique<SelectionDelegate>(m_stack.get());
    m_view = std::make_unique<PropertyPanelView>();
    show();
}

void tst_PseudoPanel::cleanup()
{
    m_view.reset();
    m_selection.reset();
    m_stack.reset();
    m_translator.reset();
    QAccessible::setActive(false);
}

/// As large as it wants to be, and no larger.
void tst_PseudoPanel::show()
{
    QVector<SelectionMember> members;
    for (PropertyStore &object : m_objects) {
        object.reset(m_list);
        members.append({m_list, &object});
    }
    const QHash<QString, QVariant> differing = {{text("frames"), 7},
                                                {text("gain"), 3.5},
                                                {text("loop"), true},
                                                {text("title"), QString()},
                                                {text("codec"), 1},
                                                {text("fields"), 1},
                                                {text("frame"), QSize(1920, 17)},
                                                {text("tint"), QColor(Qt::red)}};
    for (Property *property : m_list.properties()) {
        if (differing.contains(property->name))
            m_objects.at(1).setValue(property, differing.value(property->name),
                                     PropertyStore::NewChange);
    }
    m_selection->setMembers(members);
    m_view->setSplitterMovable(true);
    m_view->setDescriptionVisible(true);
    m_view->setArithmeticEntry(true);
    m_view->setProperties(m_selection->list(), m_selection.get());
    m_selection->attach(m_view->panel());
    EveryTypeRows::setTextures(*m_view->panel());
    m_view->resize(m_view->contentsSize());
    m_view->show();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    settleEvents();
}

QWidget *tst_PseudoPanel::field(const char *name) const
{
    QVector<PropertyEditor *> editors;
    m_view->panel()->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const Property &property = *editor->editedProperty();
        if (property.name == text(name) || property.label == text(name))
            return editor->widget(nullptr);
    }
    return nullptr;
}

QWidget *tst_PseudoPanel::label(const char *name) const
{
    const auto labels = m_view->panel()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text(name) + QLatin1Char(':'))
            return label;
    }
    return nullptr;
}

/// The menu that asked, or what is around it, opens without waiting for its end; or null.
QMenu *tst_PseudoPanel::openMenu(QWidget *asked, QContextMenuEvent::Reason reason) const
{
    const QPoint middle = asked->rect().center();
    QContextMenuEvent event(reason, middle, asked->mapToGlobal(middle));
    QApplication::sendEvent(asked, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QStringList tst_PseudoPanel::faultsOf(const QWidget &window) const
{
    return m_untranslated->in(window) + TextInspection(window).clipped();
}

QStringList tst_PseudoPanel::faultsOnAllPages() const
{
    QStringList faults;
    auto *const tabs = m_view->findChild<QTabWidget *>();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        settleEvents();
        m_view->resize(m_view->contentsSize());
        settleEvents();
        faults += faultsOf(*m_view);
    }
    faults.removeDuplicates();
    return faults;
}

void tst_PseudoPanel::hasAllTypes()
{
    QVERIFY(EveryTypeRows::hasAll(m_selection->list()));
    QVERIFY(m_selection->mixedCount() > 6);
}

/// With marks at rows that were changed, and mixed rows.
void tst_PseudoPanel::rows()
{
    VERIFY_EMPTY(faultsOnAllPages());
}

void tst_PseudoPanel::menuOfThePlainPanel()
{
    PropertyEditorPanel panel(m_list.properties(), &m_objects[0], nullptr);
    panel.show();
    const auto *const spinBox = panel.findChild<QSpinBox *>();
    QStringList faults;
    TestSupport::MenuProbe probe([&](QMenu *menu) { faults = m_untranslated->in(*menu); });
    const QPoint position =
        spinBox->mapTo(&panel, QPoint(-1, 5)); // beside it: it has a menu itself
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, panel.mapToGlobal(position));

    QApplication::sendEvent(&panel, &event);

    QCOMPARE(probe.menus, 1);
    VERIFY_EMPTY(faults);
}

void tst_PseudoPanel::searchBar_data()
{
    QTest::addColumn<QString>("searched");
    QTest::addColumn<int>("steps");

    QTest::newRow("nothing yet") << QString() << 0;
    QTest::newRow("no match") << text("zzz") << 0;
    QTest::newRow("one match") << text("volume") << 0;
    QTest::newRow("several matches") << text("o") << 0;
    QTest::newRow("one of several") << text("o") << 2;
}

void tst_PseudoPanel::searchBar()
{
    QFETCH(QString, searched);
    QFETCH(int, steps);

    QTest::keySequence(m_view.get(), QKeySequence::Find);
    QTest::keyClicks(QApplication::focusWidget(), searched);
    for (int i = 0; i < steps; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);

    QTRY_COMPARE(m_view->searchText(), searched);
    VERIFY_EMPTY(faultsOnAllPages());
}

void tst_PseudoPanel::menus_data()
{
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<bool>("isOnLabel");

    QTest::newRow("number") << QByteArray("Gain") << true;
    QTest::newRow("text") << QByteArray("Title gypsy") << true;
    QTest::newRow("group") << QByteArray("Vectors and sizes") << false;
    QTest::newRow("field without a menu of its own") << QByteArray("codec") << false;
    QTest::newRow("field of a text") << QByteArray("title") << false;
}

void tst_PseudoPanel::menus()
{
    QFETCH(QByteArray, row);
    QFETCH(bool, isOnLabel);
    QWidget *const asked = isOnLabel ? label(row) : field(row);
    QVERIFY(asked);

    const QPointer<QMenu> menu =
        openMenu(asked, isOnLabel ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard);

    QVERIFY(menu);
    QVERIFY(menu->actions().size() > 3);
    const QStringList faults = faultsOf(*menu);
    menu->close();
    VERIFY_EMPTY(faults);
}

void tst_PseudoPanel::dialogs_data()
{
    QTest::addColumn<QString>("entry");

    QTest::newRow("add") << text("&Add to Each...");
    QTest::newRow("multiply") << text("&Multiply Each...");
}

void tst_PseudoPanel::dialogs()
{
    QFETCH(QString, entry);
    const QPointer<QMenu> menu = openMenu(label("Gain"), QContextMenuEvent::Mouse);
    QVERIFY(menu);
    const auto actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text() == pseudoText(entry))
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }

    QTRY_VERIFY(m_view->findChild<QDialog *>());
    const auto *const dialog = m_view->findChild<QDialog *>();
    QTRY_VERIFY(dialog->isVisible());
    settleEvents();
    VERIFY_EMPTY(faultsOf(*dialog));
}

void tst_PseudoPanel::previewOfANumber_data()
{
    QTest::addColumn<QString>(
        "typed"); // the line break is Return, which tells of what is unfinished

    QTest::newRow("result") << text("1+2");
    QTest::newRow("larger than the range") << text("1+2000000");
    QTest::newRow("smaller than the range") << text("1-2000000");
    QTest::newRow("unknown name") << text("1+gian\n");
    QTest::newRow("unknown function") << text("1+sinus(2)\n");
    QTest::newRow("wrong count") << text("max(1)\n");
    QTest::newRow("wrong character") << text("1+2)\n");
    QTest::newRow("division by zero") << text("1/0\n");
    QTest::newRow("no real number") << text("sqrt(-1)\n");
    QTest::newRow("too large") << text("10^99^9\n");
}

void tst_PseudoPanel::previewOfANumber()
{
    QFETCH(QString, typed);
    m_view->resize(kNarrow, m_view->height());
    settleEvents();
    auto *const line = field("frames")->findChild<QLineEdit *>();

    QTest::mouseClick(line, Qt::LeftButton);
    line->selectAll();
    QTest::keyClicks(line, typed.trimmed());
    if (typed.endsWith(QLatin1Char('\n')))
        QTest::keyClick(line, Qt::Key_Return);
    settleEvents();

    const auto *const preview =
        m_view->panel()->findChild<QLabel *>(QStringLiteral("numberPreview"));
    QVERIFY(preview && preview->isVisible());
    VERIFY_EMPTY(m_untranslated->in(*m_view));
    // What the user types scrolls in its field.
    VERIFY_EMPTY(TextInspection(*m_view).clipped().filter(preview->text()));
}

void tst_PseudoPanel::findsWhatIsUntranslated()
{
    auto *const shown = new QLabel(m_view.get());
    const auto faultsWith = [&](const QString &some) {
        shown->setText(some);
        return m_untranslated->in(*m_view);
    };

    QCOMPARE(faultsWith(text("Not ours")), QStringList(text("QLabel: Not ours")));
    QCOMPARE(faultsWith(pseudoText(text("Ours")) + text(" not")).size(), 1);
    QCOMPARE(faultsWith(pseudoText(text("Ours"))), QStringList());
    QCOMPARE(faultsWith(pseudoText(pseudoText(text("Gain")) + text(" as well"))), QStringList());
    QCOMPARE(faultsWith(text("Gain:")), QStringList());
    shown->setText(QString());
    shown->setAccessibleDescription(text("Not ours"));
    QCOMPARE(m_untranslated->in(*m_view), QStringList(text("QLabel: Not ours")));
}

void tst_PseudoPanel::findsWhatIsCutOff()
{
    auto *const shown = new QLabel(text("Gain"), m_view.get());
    shown->resize(5, 5);
    shown->show();

    QCOMPARE(TextInspection(*m_view).clipped().size(), 1);
    shown->resize(shown->sizeHint());
    VERIFY_EMPTY(TextInspection(*m_view).clipped());
}

QTEST_MAIN(tst_PseudoPanel)
#include "tst_PseudoPanel.moc"
