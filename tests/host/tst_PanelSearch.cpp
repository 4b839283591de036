#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/SelectionDelegate.h>

#include <property/PropertyUI.h>

#include <support/Events.h>
#include <support/MarkingTranslator.h>
#include <support/RecordingDelegate.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::EventWatch;
using TestSupport::settleEvents;

namespace {

const QSize kViewSize(400, 260);

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

/// Around all pixels that differ.
QRect changedArea(const QImage &left, const QImage &right)
{
    QRect area;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

QString placesOf(const QRect &ink, const QRect &highlight)
{
    return QStringLiteral("letters %1-%2, %3-%4; highlight %5-%6, %7-%8")
        .arg(ink.left())
        .arg(ink.right())
        .arg(ink.top())
        .arg(ink.bottom())
        .arg(highlight.left())
        .arg(highlight.right())
        .arg(highlight.top())
        .arg(highlight.bottom());
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(QLabel &)>)

class tst_PanelSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsThereBeforeTheFirstSearch();
    void keyOpensTheBar();
    void disabledKeyDoesNothing();
    void findsWhatARowIsKnownBy_data();
    void findsWhatARowIsKnownBy();
    void typingNarrowsAndWidens();
    void countIsTold();
    void opensGroupsAroundMatches();
    void groupThatMatchesShowsAllInside();
    void tabsTellTheirMatches();
    void tabsTakeOverTitlesOfTheHost();
    void tabGroupWithoutMatchesIsHidden();
    void escapeGivesBackWhatWasOpen();
    void escapeGivesBackPlaceAndFocus();
    void escapeKeepsWhatTheUserWalkedTo();
    void escapeGoesToTheFirstFieldOfARow();
    void escapeFromARowWithoutFields();
    void closeButtonClosesToo();
    void editsAndFoldingOfTheUserStay();
    void delegateIsNotTold();
    void keysWalkTheMatches_data();
    void keysWalkTheMatches();
    void walkingMakesTabsCurrent();
    void walkingOpensGroupsThatTheUserClosed();
    void currentMatchIsMarkedAndInView();

    void rulesHoldWhileSearching();
    void hiddenByHostIsNoMatch();
    void onlyChangedShowsChangedRows();
    void onlyChangedAndWords();
    void onlyChangedKeepsRowsUnderTheHand();
    void onlyChangedAddsRows();
    void onlyChangedAsksTheSelection();
    void rowWithoutDefaultIsNotChanged();

    void hostSearches();
    void goesOnInOtherProperties();
    void stateIsThatWithoutSearch();
    void hostArrangesWhileSearching();
    void textsAreReadAgain();
    void labelsAreHighlighted_data();
    void labelsAreHighlighted();
    void highlightIsWhereTheWordIs_data();
    void highlightIsWhereTheWordIs();
    void labelsKeepTheirTexts();
    void highlightIsWhereALabelDrawsItsText_data();
    void highlightIsWhereALabelDrawsItsText();
    void highlightIsBehindTheIcon_data();
    void highlightIsBehindTheIcon();
    void barFollowsTheLanguage();
    void countFollowsTheLanguage_data();
    void countFollowsTheLanguage();
    void emptyViewIsSearched();
    void viewDeletedWhileSearching_data();
    void viewDeletedWhileSearching();
    void panelDeletedWhileSearching();

private:
    void show();
    void show(IPropertyEditorDelegate *delegate);
    void addRows(const char *prefix, int count);
    Property *property(const QString &name) const;
    QWidget *field(const QString &name) const;
    QLabel *label(const QString &text) const;
    QTabBar *tabBar() const { return m_view->panel()->findChild<QTabBar *>(); }
    QScrollBar *scrollBar() const;
    bool isShown(const char *row) const { return field(name(row))->isVisible(); }
    QStringList shown() const;
    QLineEdit *searchField() const;
    QCheckBox *onlyChanged() const;
    QString count() const;
    void openByKey();
    void type(const char *text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QWidget *mark() const;
    QString markedRow() const;

    std::unique_ptr<PropertyList> m_list;
    std::unique_ptr<PropertyStore> m_store;
    std::unique_ptr<PropertyPanelView> m_view;
};

void tst_PanelSearch::init()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight()); // over no row
    m_list = std::make_unique<PropertyList>();
    m_store = std::make_unique<PropertyStore>();
    m_view = std::make_unique<PropertyPanelView>();
}

void tst_PanelSearch::cleanup()
{
    m_view.reset();
    m_store.reset();
    m_list.reset();
}

void tst_PanelSearch::show()
{
    m_store->reset(*m_list);
    show(m_store.get());
}

void tst_PanelSearch::show(IPropertyEditorDelegate *delegate)
{
    m_view->setProperties(*m_list, delegate);
    m_view->resize(kViewSize);
    m_view->show();
    m_view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    settleEvents();
}

void tst_PanelSearch::addRows(const char *prefix, int count)
{
    for (int i = 0; i < count; ++i)
        m_list->string(name(prefix) + QString::number(i), name(prefix) + QString::number(i));
}

Property *tst_PanelSearch::property(const QString &name) const
{
    const auto properties = m_list->properties();
    for (Property *property : properties) {
        if (property->name == name || property->label == name)
            return property;
    }
    return nullptr;
}

QWidget *tst_PanelSearch::field(const QString &name) const
{
    QVector<PropertyEditor *> editors;
    m_view->panel()->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const Property *const property = editor->editedProperty();
        if (property->name == name || (property->name.isEmpty() && property->label == name))
            return editor->widget(nullptr);
    }
    return nullptr;
}

QLabel *tst_PanelSearch::label(const QString &text) const
{
    const auto labels = m_view->panel()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text() == text)
            return label;
    }
    return nullptr;
}

QScrollBar *tst_PanelSearch::scrollBar() const
{
    return m_view->findChild<QScrollArea *>()->verticalScrollBar();
}

/// The rows that are not hidden, on whatever page, by name or label.
QStringList tst_PanelSearch::shown() const
{
    QStringList rows;
    QVector<PropertyEditor *> editors;
    m_view->panel()->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const Property &property = *editor->editedProperty();
        const QWidget *const widget = editor->widget(nullptr);
        const bool isNamed =
            property.type != kPropertyTypeTab && property.type != kPropertyTypeEndGroup && widget;
        if (isNamed && !widget->isHidden())
            rows.append(property.name.isEmpty() ? property.label : property.name);
    }
    return rows;
}

/// Null before the bar is made.
QLineEdit *tst_PanelSearch::searchField() const
{
    const auto fields = m_view->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        if (!field->placeholderText().isEmpty()
            && (!m_view->panel() || !m_view->panel()->isAncestorOf(field)))
            return field;
    }
    return nullptr;
}

QCheckBox *tst_PanelSearch::onlyChanged() const
{
    return searchField()->parentWidget()->findChild<QCheckBox *>();
}

QString tst_PanelSearch::count() const
{
    return searchField()->parentWidget()->findChild<QLabel *>()->text();
}

void tst_PanelSearch::openByKey()
{
    QWidget *const focused = m_view->focusWidget() ? m_view->focusWidget() : m_view.get();
    if (!focused->hasFocus() && m_view->panel())
        m_view->panel()->setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
}

void tst_PanelSearch::type(const char *text)
{
    QTest::keyClicks(searchField(), QLatin1String(text));
    settleEvents();
}

void tst_PanelSearch::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = m_view->windowHandle();
    QTest::keyPress(window, key, modifiers);
    if (window) // the key may have deleted it
        QTest::keyRelease(window, key, modifiers);
    settleEvents();
}

/// The frame around the current match: what lies over its page and lets the mouse through.
QWidget *tst_PanelSearch::mark() const
{
    const auto widgets = m_view->panel()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->testAttribute(Qt::WA_TransparentForMouseEvents) && widget->isVisible()
            && widget->children().isEmpty() && widget->metaObject() == &QWidget::staticMetaObject)
            return widget;
    }
    return nullptr;
}

/// The row inside of the frame.
QString tst_PanelSearch::markedRow() const
{
    const QWidget *const frame = mark();
    QVector<PropertyEditor *> editors;
    m_view->panel()->getEditors(editors, QString());
    for (PropertyEditor *editor : std::as_const(editors)) {
        const QWidget *const widget = editor->widget(nullptr);
        if (frame && widget && widget->isVisible()
            && widget->parentWidget() == frame->parentWidget()
            && frame->geometry().contains(widget->geometry())) {
            const Property &property = *editor->editedProperty();
            return property.name.isEmpty() ? property.label : property.name;
        }
    }
    return QString();
}

void tst_PanelSearch::nothingIsThereBeforeTheFirstSearch()
{
    addRows("row", 2);
    show();

    QVERIFY(!searchField());
    QVERIFY(m_view->isSearchEnabled());
    QCOMPARE(m_view->searchText(), QString());
    QVERIFY(!m_view->isOnlyChanged());
    m_view->closeSearch();
    QVERIFY(!searchField());
}

void tst_PanelSearch::keyOpensTheBar()
{
    addRows("row", 2);
    show();
    field(name("row1"))->setFocus();

    openByKey();

    QVERIFY(searchField());
    QVERIFY(searchField()->isVisible());
    QVERIFY(searchField()->hasFocus());
    QVERIFY(searchField()->isClearButtonEnabled());
    QVERIFY(!searchField()->accessibleName().isEmpty());
    QCOMPARE(count(), QString());
    QVERIFY(searchField()->mapTo(m_view.get(), QPoint()).y()
            < m_view->panel()->mapTo(m_view.get(), QPoint()).y());

    type("row1");
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(searchField()->selectedText(), name("row1"));
}

void tst_PanelSearch::disabledKeyDoesNothing()
{
    addRows("row", 2);
    show();
    m_view->setSearchEnabled(false);

    openByKey();
    QVERIFY(!searchField());
    QVERIFY(!m_view->isSearchEnabled());

    m_view->openSearch();
    QVERIFY(searchField()->hasFocus());
}

void tst_PanelSearch::findsWhatARowIsKnownBy_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("rows");

    const QStringList all{name("w"), name("mode"), name("e"), name("tex")};
    QTest::newRow("nothing") << QString() << all;
    QTest::newRow("spaces") << name("  ") << all;
    QTest::newRow("label") << name("width") << QStringList{name("w")};
    QTest::newRow("name") << name("mod") << QStringList{name("mode")};
    QTest::newRow("choice") << name("additive") << QStringList{name("mode")};
    QTest::newRow("stored choice") << name("one") << QStringList();
    QTest::newRow("help") << name("pixels") << QStringList{name("w")};
    QTest::newRow("texture") << name("granite") << QStringList{name("tex")};
    QTest::newRow("without accents") << name("ecart") << QStringList{name("e")};
    QTest::newRow("words of several texts") << name("pixels frame") << QStringList{name("w")};
    QTest::newRow("words of several rows") << name("width blend") << QStringList();
    QTest::newRow("no match") << name("zebra") << QStringList();
}

void tst_PanelSearch::findsWhatARowIsKnownBy()
{
    m_list->integer(name("w"), name("Frame Width")).range(0, 9).help(name("In pixels."));
    m_list->choice(name("mode"), name("Blend"))
        .choice(name("one"), name("Normal"))
        .choice(name("two"), name("Additive"));
    m_list->string(name("e"), name("Écart"));
    TextureChoice granite;
    granite.name = name("Granite");
    granite.image = QImage(4, 4, QImage::Format_RGB32);
    m_list->texture(name("tex"), name("Surface"))
        .hint(kHostHintTextures, QVariantList{QVariant::fromValue(granite)});
    show();
    openByKey();

    QFETCH(QString, search);
    QTest::keyClicks(searchField(), search);
    settleEvents();

    QTEST(shown(), "rows");
}

void tst_PanelSearch::typingNarrowsAndWidens()
{
    m_list->string(name("a"), name("Alpha"));
    m_list->string(name("b"), name("Alps"));
    m_list->string(name("c"), name("Beta"));
    show();
    openByKey();

    type("al");
    QCOMPARE(shown(), (QStringList{name("a"), name("b")}));
    QVERIFY(!label(name("Beta:"))->isVisible());
    type("ph");
    QCOMPARE(shown(), QStringList{name("a")});
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    QCOMPARE(shown(), (QStringList{name("a"), name("b")}));
    searchField()->findChild<QToolButton *>()->click(); // clears
    settleEvents();
    QCOMPARE(shown(), (QStringList{name("a"), name("b"), name("c")}));
    QVERIFY(label(name("Beta:"))->isVisible());
}

void tst_PanelSearch::countIsTold()
{
    addRows("row", 3);
    show();
    openByKey();

    type("row");
    QCOMPARE(count(), name("3 matches"));
    QCOMPARE(searchField()->accessibleDescription(), count());
    press(Qt::Key_Down);
    QCOMPARE(count(), name("1 of 3"));
    type("1");
    QCOMPARE(count(), name("1 match"));
    type("x");
    QCOMPARE(count(), name("No matches"));
    m_view->setSearchText(QString());
    QCOMPARE(count(), QString());
}

void tst_PanelSearch::opensGroupsAroundMatches()
{
    m_list->group(name("Outer"), [&] {
        m_list->group(name("Inner"), [&] { m_list->string(name("deep"), name("Deep")); });
        m_list->string(name("flat"), name("Flat"));
    });
    m_list->group(name("Other"), [&] { m_list->string(name("else"), name("Else")); });
    show();
    m_view->collapseAll();
    openByKey();

    type("deep");

    QCOMPARE(shown(), (QStringList{name("Outer"), name("Inner"), name("deep")}));
    QVERIFY(isShown("deep"));
    QVERIFY(qobject_cast<QCheckBox *>(field(name("Inner")))->isChecked());
    QVERIFY(!m_view->isGroupOpen(property(name("Outer")))); // it was not the user
    QCOMPARE(count(), name("1 match"));
}

void tst_PanelSearch::groupThatMatchesShowsAllInside()
{
    m_list->group(name("Levels"), [&] {
        addRows("row", 2);
        m_list->group(name("Inner"), [&] { m_list->string(name("deep"), name("Deep")); });
    });
    m_list->string(name("other"), name("Other"));
    show();
    m_view->collapseAll();
    openByKey();

    type("levels");

    QCOMPARE(shown(), (QStringList{name("Levels"), name("row0"), name("row1"), name("Inner"),
                                   name("deep")}));
    QVERIFY(isShown("deep"));
    QCOMPARE(count(), name("1 match"));
}

void tst_PanelSearch::tabsTellTheirMatches()
{
    m_list->tabs([&] {
        m_list->tab(name("Sha&pe"), [&] {
            m_list->string(name("w"), name("Wide"));
            m_list->group(name("G"), [&] { m_list->string(name("x"), name("Extra wide")); });
        });
        m_list->tab(name("Color"), [&] { m_list->string(name("c"), name("Hue")); });
        m_list->tab(name("Wideness"), [&] { m_list->string(name("d"), name("Depth")); });
    });
    show();
    openByKey();

    type("wide");

    QCOMPARE(tabBar()->tabText(0), name("Sha&pe (2)"));
    QCOMPARE(tabBar()->tabText(1), name("Color"));
    QCOMPARE(tabBar()->tabText(2), name("Wideness (1)"));
    QVERIFY(tabBar()->isTabVisible(1));
    QCOMPARE(shown().filter(name("d")), QStringList{name("d")}); // its tab matches
    type("x");
    QCOMPARE(tabBar()->tabText(0), name("Sha&pe"));
    press(Qt::Key_Backspace);
    press(Qt::Key_Escape);
    QCOMPARE(tabBar()->tabText(0), name("Sha&pe"));
    QCOMPARE(tabBar()->tabText(2), name("Wideness"));
}

void tst_PanelSearch::tabsTakeOverTitlesOfTheHost()
{
    m_list->tabs([&] { m_list->tab(name("T"), [&] { m_list->string(name("w"), name("Wide")); }); });
    show();
    openByKey();
    type("wi");

    tabBar()->setTabText(0, name("New"));
    type("d");
    QCOMPARE(tabBar()->tabText(0), name("New (1)"));
    tabBar()->setTabText(0, name("Newer"));
    press(Qt::Key_Escape);

    QCOMPARE(tabBar()->tabText(0), name("Newer"));
}

void tst_PanelSearch::tabGroupWithoutMatchesIsHidden()
{
    m_list->tabs([&] { m_list->tab(name("T"), [&] { m_list->string(name("w"), name("Wide")); }); });
    m_list->string(name("h"), name("High"));
    show();
    openByKey();

    type("high");
    QVERIFY(!tabBar()->isVisible());
    press(Qt::Key_Escape);
    QVERIFY(tabBar()->isVisible());
}

void tst_PanelSearch::escapeGivesBackWhatWasOpen()
{
    m_list->group(name("Closed"), [&] { m_list->string(name("a"), name("Alpha")); });
    m_list->group(name("Open"), [&] { m_list->string(name("b"), name("Beta")); });
    show();
    m_view->setGroupOpen(property(name("Closed")), false);
    openByKey();
    type("alpha");
    QVERIFY(isShown("a"));

    press(Qt::Key_Escape);

    QVERIFY(!searchField()->isVisible());
    QCOMPARE(m_view->searchText(), QString());
    QCOMPARE(shown(), (QStringList{name("Closed"), name("Open"), name("b")}));
    QVERIFY(!qobject_cast<QCheckBox *>(field(name("Closed")))->isChecked());

    // The next search starts anew.
    openByKey();
    QVERIFY(searchField()->isVisible());
    QCOMPARE(searchField()->text(), QString());
}

void tst_PanelSearch::escapeGivesBackPlaceAndFocus()
{
    addRows("row", 40);
    show();
    scrollBar()->setValue(371);
    field(name("row20"))->setFocus();
    openByKey();
    type("row3");
    QCOMPARE(scrollBar()->value(), 0);

    press(Qt::Key_Escape);

    QCOMPARE(scrollBar()->value(), 371);
    QVERIFY(field(name("row20"))->hasFocus());
    settleEvents();
    QCOMPARE(scrollBar()->value(), 371);
}

void tst_PanelSearch::escapeKeepsWhatTheUserWalkedTo()
{
    addRows("row", 30);
    m_list->group(name("G"), [&] {
        m_list->tabs([&] {
            m_list->tab(name("One"), [&] { m_list->string(name("o"), name("One")); });
            m_list->tab(name("Two"), [&] { m_list->string(name("t"), name("Target")); });
        });
    });
    m_list->group(name("H"), [&] { m_list->string(name("u"), name("Target too")); });
    show();
    m_view->collapseAll();
    field(name("row2"))->setFocus();
    openByKey();
    type("target");
    press(Qt::Key_Down);

    press(Qt::Key_Escape);

    QVERIFY(field(name("t"))->hasFocus());
    QVERIFY(isShown("t"));
    QVERIFY(m_view->isGroupOpen(property(name("G"))));
    QVERIFY(!m_view->isGroupOpen(property(name("H"))));
    const QWidget *const viewport = m_view->findChild<QScrollArea *>()->viewport();
    const QRect place(field(name("t"))->mapTo(viewport, QPoint()), field(name("t"))->size());
    QVERIFY(viewport->rect().contains(place));
    QVERIFY(!mark());
}

void tst_PanelSearch::escapeGoesToTheFirstFieldOfARow()
{
    m_list->string(name("a"), name("Alpha"));
    m_list->vec3(name("place"), name("Place"));
    show();
    field(name("a"))->setFocus();
    openByKey();
    type("place");
    press(Qt::Key_Down);

    press(Qt::Key_Escape);

    QVERIFY(field(name("place"))->findChildren<QDoubleSpinBox *>().first()->hasFocus());
}

void tst_PanelSearch::escapeFromARowWithoutFields()
{
    m_list->string(name("a"), name("Alpha"));
    m_list->staticText(name("told"), name("Told"));
    m_list->string(name("b"), name("Beta"));
    show();
    field(name("a"))->setFocus();
    openByKey();
    type("told");
    press(Qt::Key_Down);

    press(Qt::Key_Escape);

    QVERIFY(field(name("a"))->hasFocus());
}

void tst_PanelSearch::closeButtonClosesToo()
{
    addRows("row", 3);
    show();
    openByKey();
    type("row2");

    auto *const bar = searchField()->parentWidget();
    QTest::mouseClick(bar->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly),
                      Qt::LeftButton);
    settleEvents();

    QVERIFY(!bar->isVisible());
    QCOMPARE(shown().size(), 3);
}

void tst_PanelSearch::editsAndFoldingOfTheUserStay()
{
    m_list->group(name("G"), [&] { m_list->string(name("a"), name("Alpha")); });
    m_list->group(name("H"), [&] { m_list->string(name("b"), name("Alpine")); });
    show();
    m_view->setGroupOpen(property(name("G")), false);
    openByKey();
    type("alp");

    QTest::keyClicks(field(name("a")), name("edit"));
    QTest::keyClick(field(name("a")), Qt::Key_Return);
    QTest::mouseClick(field(name("H")), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, field(name("H"))->height() / 2));
    settleEvents();
    QVERIFY(!isShown("b"));
    QVERIFY(!m_view->isGroupOpen(property(name("H"))));
    searchField()->setFocus();
    press(Qt::Key_Escape);

    QCOMPARE(m_store->value(property(name("a"))).toString(), name("edit"));
    QCOMPARE(shown(), (QStringList{name("G"), name("H")}));
}

void tst_PanelSearch::delegateIsNotTold()
{
    m_list->group(name("G"), [&] {
        m_list->tabs([&] {
            m_list->tab(name("One"), [&] { addRows("row", 3); });
            m_list->tab(name("Two"), [&] { m_list->string(name("t"), name("Target")); });
        });
    });
    TestSupport::RecordingDelegate delegate;
    show(&delegate);
    m_view->collapseAll();
    delegate.changes.clear();

    openByKey();
    type("target");
    press(Qt::Key_Down);
    QVERIFY(isShown("t"));
    onlyChanged()->click();
    settleEvents();
    press(Qt::Key_Escape);

    QCOMPARE(delegate.log(), QStringList());
}

void tst_PanelSearch::keysWalkTheMatches_data()
{
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("nextModifiers");
    QTest::addColumn<int>("previous");
    QTest::addColumn<int>("previousModifiers");

    const int none = Qt::NoModifier;
    const int shift = Qt::ShiftModifier;
    QTest::newRow("arrows") << int(Qt::Key_Down) << none << int(Qt::Key_Up) << none;
    QTest::newRow("Return") << int(Qt::Key_Return) << none << int(Qt::Key_Return) << shift;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << int(Qt::Key_Enter)
                           << int(Qt::KeypadModifier | Qt::ShiftModifier);
    QTest::newRow("F3") << int(Qt::Key_F3) << none << int(Qt::Key_F3) << shift;
}

void tst_PanelSearch::keysWalkTheMatches()
{
    QFETCH(int, next);
    QFETCH(int, nextModifiers);
    QFETCH(int, previous);
    QFETCH(int, previousModifiers);
    const auto goOn = [&] { press(Qt::Key(next), Qt::KeyboardModifiers(nextModifiers)); };
    const auto goBack = [&] { press(Qt::Key(previous), Qt::KeyboardModifiers(previousModifiers)); };
    m_list->group(name("Row group"), [&] { addRows("row", 2); });
    show();
    openByKey();
    type("row");

    QCOMPARE(markedRow(), QString());
    goOn();
    QCOMPARE(markedRow(), name("Row group"));
    goOn();
    QCOMPARE(markedRow(), name("row0"));
    goOn();
    QCOMPARE(markedRow(), name("row1"));
    goOn();
    QCOMPARE(markedRow(), name("Row group"));
    goBack();
    QCOMPARE(markedRow(), name("row1"));
    QCOMPARE(count(), name("3 of 3"));
    QVERIFY(searchField()->hasFocus());

    // At first, the way back begins at the end.
    type("1");
    m_view->setSearchText(name("row"));
    m_view->closeSearch();
    openByKey();
    type("row");
    goBack();
    QCOMPARE(markedRow(), name("row1"));
}

void tst_PanelSearch::walkingMakesTabsCurrent()
{
    m_list->tabs([&] {
        m_list->tab(name("One"), [&] { m_list->string(name("o"), name("Other")); });
        m_list->tab(name("Two"), [&] { m_list->string(name("t"), name("Target")); });
        m_list->tab(name("Target tab"), [&] { m_list->string(name("u"), name("Last")); });
    });
    show();
    openByKey();
    type("target");
    QCOMPARE(tabBar()->currentIndex(), 0);

    press(Qt::Key_Down);
    QCOMPARE(tabBar()->currentIndex(), 1);
    QCOMPARE(markedRow(), name("t"));
    press(Qt::Key_Down);
    QCOMPARE(tabBar()->currentIndex(), 2);

    // Without a current match, Escape gives the tab back.
    type("x");
    press(Qt::Key_Escape);
    QCOMPARE(tabBar()->currentIndex(), 0);
}

void tst_PanelSearch::walkingOpensGroupsThatTheUserClosed()
{
    m_list->group(name("G"), [&] { m_list->string(name("a"), name("Alpha")); });
    show();
    openByKey();
    type("alpha");
    QTest::mouseClick(field(name("G")), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, field(name("G"))->height() / 2));
    QVERIFY(!isShown("a"));

    searchField()->setFocus();
    press(Qt::Key_Down);

    QVERIFY(isShown("a"));
    QCOMPARE(markedRow(), name("a"));
}

void tst_PanelSearch::currentMatchIsMarkedAndInView()
{
    addRows("row", 40);
    show();
    openByKey();
    type("row");
    const QWidget *const viewport = m_view->findChild<QScrollArea *>()->viewport();

    press(Qt::Key_Up);
    QCOMPARE(markedRow(), name("row39"));
    const QWidget *const frame = mark();
    QVERIFY(frame->geometry().contains(label(name("row39:"))->geometry()));
    const QRect place(frame->mapTo(viewport, QPoint()), frame->size());
    QVERIFY(viewport->rect().intersects(place));
    QVERIFY(viewport->rect().contains(
        QRect(field(name("row39"))->mapTo(viewport, QPoint()), field(name("row39"))->size())));

    m_view->resize(600, 300);
    settleEvents();
    QCOMPARE(markedRow(), name("row39")); // it follows
    type("3");
    QCOMPARE(markedRow(), name("row39"));
    type("0");
    QVERIFY(!mark());
}

void tst_PanelSearch::rulesHoldWhileSearching()
{
    m_list->boolean(name("on"), name("Row on"));
    m_list->string(name("r"), name("Row ruled")).visibleWhen(name("on"));
    m_list->group(name("G"), [&] { m_list->string(name("s"), name("Row inside")); })
        .visibleWhen(name("on"));
    show();
    openByKey();

    type("row");
    QCOMPARE(shown(), QStringList{name("on")});
    QCOMPARE(count(), name("1 match"));

    QTest::mouseClick(field(name("on")), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, field(name("on"))->height() / 2));
    settleEvents();
    QCOMPARE(shown(), (QStringList{name("on"), name("r"), name("G"), name("s")}));
    QCOMPARE(count(), name("3 matches"));

    m_view->setSearchText(name("inside"));
    QTest::mouseClick(field(name("G")), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    m_store->setValue(property(name("on")), false, IPropertyEditorDelegate::NewChange);
    m_view->updateUI();
    settleEvents();
    QCOMPARE(shown(), QStringList());
    QCOMPARE(count(), name("No matches"));
    m_view->closeSearch();
    QCOMPARE(shown(), QStringList{name("on")});
}

void tst_PanelSearch::hiddenByHostIsNoMatch()
{
    addRows("row", 3);
    show();
    field(name("row1"))->hide();
    label(name("row1:"))->hide();
    openByKey();

    type("row");
    QCOMPARE(shown(), (QStringList{name("row0"), name("row2")}));
    QCOMPARE(count(), name("2 matches"));

    press(Qt::Key_Escape);
    QCOMPARE(shown(), (QStringList{name("row0"), name("row2")}));
}

void tst_PanelSearch::onlyChangedShowsChangedRows()
{
    m_list->integer(name("a"), name("A")).range(0, 9).defaultValue(4);
    m_list->group(name("G"), [&] {
        m_list->number(name("b"), name("B")).range(0, 9).defaultValue(1);
        m_list->boolean(name("c"), name("C")).defaultValue(true);
    });
    m_list->group(name("H"), [&] { m_list->string(name("d"), name("D")).defaultValue(name("x")); });
    m_store->reset(*m_list);
    m_store->setValue(property(name("b")), 2.0, IPropertyEditorDelegate::NewChange);
    show(m_store.get());
    m_view->collapseAll();
    openByKey();

    QTest::mouseClick(onlyChanged(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(8, onlyChanged()->height() / 2));
    settleEvents();

    QVERIFY(m_view->isOnlyChanged());
    QCOMPARE(shown(), (QStringList{name("G"), name("b")}));
    QVERIFY(isShown("b"));
    QCOMPARE(count(), name("1 match"));
    press(Qt::Key_Escape);
    QVERIFY(!m_view->isOnlyChanged());
    QCOMPARE(shown(), (QStringList{name("a"), name("G"), name("H")}));
}

void tst_PanelSearch::onlyChangedAndWords()
{
    m_list->group(name("Level group"), [&] {
        m_list->integer(name("a"), name("Level")).range(0, 9).defaultValue(4);
        m_list->integer(name("b"), name("Level too")).range(0, 9).defaultValue(4);
        m_list->integer(name("c"), name("Other")).range(0, 9).defaultValue(4);
    });
    m_list->group(name("Level of none"),
                  [&] { m_list->integer(name("d"), name("D")).range(0, 9).defaultValue(4); });
    m_store->reset(*m_list);
    for (const char *row : {"b", "c"})
        m_store->setValue(property(name(row)), 2, IPropertyEditorDelegate::NewChange);
    show(m_store.get());

    m_view->setOnlyChanged(true);
    m_view->setSearchText(name("level"));

    QCOMPARE(shown(), (QStringList{name("Level group"), name("b"), name("c")}));
    QCOMPARE(count(), name("2 matches")); // the group and b
    m_view->setSearchText(name("too"));
    QCOMPARE(shown(), (QStringList{name("Level group"), name("b")}));
}

void tst_PanelSearch::onlyChangedKeepsRowsUnderTheHand()
{
    m_list->integer(name("a"), name("A")).range(0, 9).defaultValue(4);
    m_list->integer(name("b"), name("B")).range(0, 9).defaultValue(4);
    m_store->reset(*m_list);
    m_store->setValue(property(name("a")), 5, IPropertyEditorDelegate::NewChange);
    show(m_store.get());
    m_view->setOnlyChanged(true);
    QCOMPARE(shown(), QStringList{name("a")});

    auto *const spinBox = field(name("a"))->findChild<QSpinBox *>();
    QVERIFY(spinBox);
    spinBox->setFocus();
    spinBox->selectAll();
    QTest::keyClicks(spinBox, name("4"));
    settleEvents();
    QCOMPARE(m_store->value(property(name("a"))).toInt(), 4);
    QCOMPARE(shown(), QStringList{name("a")});

    m_view->setSearchText(name("a"));
    QCOMPARE(shown(), QStringList());
    QCOMPARE(count(), name("No matches"));
}

void tst_PanelSearch::onlyChangedAddsRows()
{
    m_list->integer(name("a"), name("A")).range(0, 9).defaultValue(4);
    m_list->integer(name("b"), name("B")).range(0, 9).defaultValue(4);
    show();
    m_view->setOnlyChanged(true);
    QCOMPARE(shown(), QStringList());

    m_store->setValue(property(name("b")), 5, IPropertyEditorDelegate::NewChange);
    m_view->updateUI();
    settleEvents();

    QCOMPARE(shown(), QStringList{name("b")});
    QCOMPARE(count(), name("1 match"));
}

/// Each object has a default of its own, which the row does not tell.
void tst_PanelSearch::onlyChangedAsksTheSelection()
{
    PropertyList lists[2];
    PropertyStore stores[2];
    for (int i = 0; i < 2; ++i) {
        lists[i].integer(name("own"), name("Own")).range(0, 9).defaultValue(i);
        lists[i].integer(name("same"), name("Same")).range(0, 9).defaultValue(3);
        stores[i].reset(lists[i]);
    }
    SelectionDelegate selection;
    selection.setMembers({{lists[0], &stores[0]}, {lists[1], &stores[1]}});
    m_view->setProperties(selection.list(), &selection);
    m_view->setOnlyChanged(true);
    QCOMPARE(shown(), QStringList());

    stores[1].setValue(lists[1].properties().at(0), 7, IPropertyEditorDelegate::NewChange);
    stores[0].setValue(lists[0].properties().at(1), 5, IPropertyEditorDelegate::NewChange);
    selection.refresh();
    m_view->updateUI();
    settleEvents();

    QCOMPARE(shown(), (QStringList{name("own"), name("same")}));
    m_view.reset();
}

void tst_PanelSearch::rowWithoutDefaultIsNotChanged()
{
    m_list->string(name("a"), name("A"));
    m_list->action(name("go"), name("Go"));
    m_store->setValue(property(name("a")), name("text"), IPropertyEditorDelegate::NewChange);
    show(m_store.get());

    m_view->setOnlyChanged(true);

    QCOMPARE(shown(), QStringList());
}

void tst_PanelSearch::hostSearches()
{
    addRows("row", 3);
    show();
    field(name("row0"))->setFocus();

    m_view->setSearchText(name("row2"));

    QCOMPARE(m_view->searchText(), name("row2"));
    QVERIFY(searchField()->isVisible());
    QVERIFY(!searchField()->hasFocus());
    QCOMPARE(shown(), QStringList{name("row2")});
    m_view->closeSearch();
    QCOMPARE(m_view->searchText(), QString());
    QCOMPARE(shown().size(), 3);
}

void tst_PanelSearch::goesOnInOtherProperties()
{
    m_list->group(name("G"), [&] { addRows("row", 3); });
    show();
    m_view->collapseAll();
    openByKey();
    type("row1");
    PropertyList other;
    other.group(name("G"), [&] {
        other.string(name("row1"), name("row1"));
        other.string(name("x"), name("X"));
    });

    m_view->setProperties(other, m_store.get());
    settleEvents();

    QVERIFY(searchField()->hasFocus());
    QCOMPARE(shown(), (QStringList{name("G"), name("row1")}));
    QCOMPARE(count(), name("1 match"));
    press(Qt::Key_Escape);
    QCOMPARE(shown(), QStringList{name("G")}); // closed, as in the panel before
    m_view->clear();
}

void tst_PanelSearch::stateIsThatWithoutSearch()
{
    m_list->group(name("G"), [&] { addRows("row", 40); });
    m_list->tabs([&] {
        m_list->tab(name("One"), [&] { m_list->string(name("o"), name("Other")); });
        m_list->tab(name("Two"), [&] { m_list->string(name("t"), name("Target")); });
    });
    show();
    scrollBar()->setValue(200);
    field(name("row9"))->setFocus();
    const QByteArray state = m_view->saveState();
    openByKey();
    m_view->setGroupOpen(property(name("G")), false);
    m_view->setGroupOpen(property(name("G")), true);

    type("target");
    press(Qt::Key_Down);

    QCOMPARE(m_view->saveState(), state);
}

void tst_PanelSearch::hostArrangesWhileSearching()
{
    m_list->group(name("G"), [&] { m_list->string(name("a"), name("Alpha")); });
    m_list->group(name("H"), [&] { m_list->string(name("b"), name("Beta")); });
    show();
    m_view->collapseAll();
    const QByteArray closed = m_view->saveState();
    openByKey();
    type("alpha");

    m_view->setGroupOpen(property(name("G")), true);
    QVERIFY(m_view->isGroupOpen(property(name("G"))));
    m_view->setGroupOpen(property(name("G")), false);
    QVERIFY(!m_view->isGroupOpen(property(name("G"))));
    QVERIFY(isShown("a")); // it matches
    m_view->expandAll();
    QCOMPARE(shown(), (QStringList{name("G"), name("a")}));
    press(Qt::Key_Escape);
    QCOMPARE(shown(), (QStringList{name("G"), name("a"), name("H"), name("b")}));

    openByKey();
    type("beta");
    m_view->restoreState(closed);
    QCOMPARE(shown(), (QStringList{name("H"), name("b")}));
    QVERIFY(searchField()->hasFocus());
    press(Qt::Key_Escape);
    QCOMPARE(shown(), (QStringList{name("G"), name("H")}));
}

void tst_PanelSearch::textsAreReadAgain()
{
    addRows("row", 2);
    show();
    openByKey();
    type("zebra");
    QCOMPARE(shown(), QStringList());

    property(name("row1"))->setHint(kHostHintHelp, name("Stripes of a zebra"));
    m_view->updateProperty(property(name("row1")));

    QCOMPARE(shown(), QStringList{name("row1")});
    QCOMPARE(count(), name("1 match"));
}

void tst_PanelSearch::labelsAreHighlighted_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("rightToLeft");
    QTest::addColumn<bool>("isGroup");

    for (const bool rightToLeft : {false, true}) {
        const QByteArray direction = rightToLeft ? ", right to left" : "";
        QTest::newRow("plain" + direction) << name("Mmmm target") << rightToLeft << false;
        QTest::newRow("rich" + direction)
            << name("<b>Mmmm</b> <i>target</i>") << rightToLeft << false;
        QTest::newRow("two lines" + direction) << name("Mmmm\ntarget mmm") << rightToLeft << false;
        QTest::newRow("group" + direction) << name("M&mmm target") << rightToLeft << true;
    }
    QTest::newRow("Hebrew") << name("שלום mmm target") << true << false;
}

/// What is painted is compared with the same without a search: it differs where the word is.
void tst_PanelSearch::labelsAreHighlighted()
{
    QFETCH(QString, label);
    QFETCH(bool, rightToLeft);
    QFETCH(bool, isGroup);
    m_view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    if (isGroup)
        m_list->group(label, [&] { m_list->string(name("r"), name("Row")); });
    else
        m_list->string(name("r"), label);
    show();
    QWidget *const widget = isGroup ? field(label) : this->label(label + QLatin1Char(':'));
    QVERIFY(widget);
    const auto changed = [&](const char *search) {
        m_view->setSearchText(QString());
        settleEvents();
        const QImage before = widget->grab().toImage();
        m_view->setSearchText(name(search));
        settleEvents();
        const QImage after = widget->grab().toImage();
        int pixels = 0;
        for (int y = 0; y < after.height(); ++y) {
            for (int x = 0; x < after.width(); ++x)
                pixels += after.pixel(x, y) != before.pixel(x, y) ? 1 : 0;
        }
        return pixels;
    };

    const int word = changed("target");
    const int part = changed("targ");
    const int all = changed("target mmm");

    QVERIFY(part > 0);
    QVERIFY(word > part);
    QVERIFY(all > word);
    m_view->closeSearch();
    settleEvents();
    QCOMPARE(changed(""), 0);
}

void tst_PanelSearch::highlightIsWhereTheWordIs_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("rightToLeft");

    for (const bool rightToLeft : {false, true}) {
        const QByteArray direction = rightToLeft ? ", right to left" : "";
        QTest::newRow("plain" + direction) << name("target m") << rightToLeft;
        QTest::newRow("rich" + direction) << name("<b>target</b> m") << rightToLeft;
        QTest::newRow("two lines" + direction) << name("target\nm") << rightToLeft;
    }
}

/// The word is the first of the label, which is read from the left whatever the panel is.
void tst_PanelSearch::highlightIsWhereTheWordIs()
{
    QFETCH(QString, label);
    QFETCH(bool, rightToLeft);
    m_view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    m_list->string(name("r"), label);
    m_list->string(name("s"), name("A much wider label"));
    show();
    m_view->openSearch();
    m_view->setLabelWidth(200);
    settleEvents();
    QWidget *const widget = this->label(label + QLatin1Char(':'));
    const auto leftmost = [](const QImage &image, const QImage &background) {
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixel(x, y) != background.pixel(x, y))
                    return x;
            }
        }
        return -1;
    };
    const QImage before = widget->grab().toImage();
    QImage empty = before;
    empty.fill(before.pixelColor(0, 0));

    m_view->setSearchText(name("target"));
    settleEvents();

    const int ink = leftmost(before, empty);
    const int highlight = leftmost(widget->grab().toImage(), before);
    QVERIFY(ink >= 0);
    QVERIFY2(highlight <= ink && highlight >= ink - 2,
             qPrintable(QString::number(highlight - ink)));
}

void tst_PanelSearch::highlightIsWhereALabelDrawsItsText_data()
{
    using Dress = std::function<void(QLabel &)>;
    QTest::addColumn<Dress>("dress");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *title, const Dress &dress, const char *text = "target m") {
        QTest::newRow(title) << dress << name(text);
    };

    row("in the middle", [](QLabel &) {});
    row("at the top", [](QLabel &label) { label.setAlignment(Qt::AlignLeft | Qt::AlignTop); });
    row("at the bottom",
        [](QLabel &label) { label.setAlignment(Qt::AlignLeft | Qt::AlignBottom); });
    row("at the right", [](QLabel &label) { label.setAlignment(Qt::AlignRight | Qt::AlignTop); });
    row("indented", [](QLabel &label) {
        label.setIndent(30);
        label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    });
    row("indented from the right", [](QLabel &label) {
        label.setIndent(30);
        label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    });
    row("in a frame", [](QLabel &label) { label.setFrameStyle(QFrame::Box | QFrame::Plain); });
    row("in a sunken frame",
        [](QLabel &label) { label.setFrameStyle(QFrame::Panel | QFrame::Sunken); });
    row("in a raised frame with a margin", [](QLabel &label) {
        label.setFrameStyle(QFrame::Panel | QFrame::Raised);
        label.setMargin(5);
    });
    row(
        "Markdown", [](QLabel &label) { label.setTextFormat(Qt::MarkdownText); }, "**target** m");
}

/// The host may dress labels as it likes. The highlight lies where letters come and go with the text.
void tst_PanelSearch::highlightIsWhereALabelDrawsItsText()
{
    QFETCH(std::function<void(QLabel &)>, dress);
    QFETCH(QString, text);
    m_list->string(name("r"), text);
    show();
    m_view->openSearch();
    m_view->setLabelWidth(200);
    QLabel *const widget = label(text + QLatin1Char(':'));
    widget->setMinimumHeight(60);
    dress(*widget);
    settleEvents();
    const QImage before = widget->grab().toImage();

    m_view->setSearchText(name("target"));
    settleEvents();
    const QImage after = widget->grab().toImage();
    m_view->setSearchText(QString());
    widget->setText(QString(QLatin1Char(' ')));
    const QImage empty = widget->grab().toImage();

    const QRect ink = changedArea(before, empty);
    const QRect highlight = changedArea(after, before);
    QVERIFY(!ink.isEmpty());
    QVERIFY2(qAbs(highlight.left() - ink.left()) <= 2, qPrintable(placesOf(ink, highlight)));
    QVERIFY2(highlight.right() < ink.right(), qPrintable(placesOf(ink, highlight)));
    QVERIFY2(highlight.top() <= ink.top() && highlight.bottom() >= ink.bottom() - 1
                 && highlight.height() <= widget->fontMetrics().height() + 2,
             qPrintable(placesOf(ink, highlight)));
}

void tst_PanelSearch::highlightIsBehindTheIcon_data()
{
    QTest::addColumn<bool>("rightToLeft");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_PanelSearch::highlightIsBehindTheIcon()
{
    QFETCH(bool, rightToLeft);
    m_view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    m_list->boolean(name("r"), name("target"));
    show();
    auto *const box = qobject_cast<QCheckBox *>(field(name("r")));
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    box->setIcon(icon);
    m_view->openSearch();
    settleEvents();
    const QImage before = box->grab().toImage();

    m_view->setSearchText(name("target"));
    settleEvents();
    const QImage after = box->grab().toImage();
    m_view->setSearchText(QString());
    box->setText(QString(QLatin1Char(' ')));
    const QImage empty = box->grab().toImage();

    const QRect ink = changedArea(before, empty);
    const QRect highlight = changedArea(after, before);
    QVERIFY(!ink.isEmpty());
    QVERIFY2(qAbs(highlight.left() - ink.left()) <= 2 && qAbs(highlight.right() - ink.right()) <= 2,
             qPrintable(placesOf(ink, highlight)));
}

void tst_PanelSearch::barFollowsTheLanguage()
{
    addRows("row", 2);
    show();
    openByKey();
    const QString before = onlyChanged()->text();
    QVERIFY(!before.isEmpty());
    {
        const MarkingTranslator translator("Tessark::PropertyHost::SearchBar");
        QTRY_COMPARE(onlyChanged()->text(), QLatin1Char('[') + before + QLatin1Char(']'));
        QVERIFY(searchField()->placeholderText().startsWith(QLatin1Char('[')));
    }

    QTRY_COMPARE(onlyChanged()->text(), before);
}

void tst_PanelSearch::countFollowsTheLanguage_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<bool>("walks");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << name("nowhere") << false << name("No matches");
    QTest::newRow("one") << name("row1") << false << name("1 match");
    QTest::newRow("several") << name("row") << false << name("3 matches");
    QTest::newRow("at one of several") << name("row") << true << name("1 of 3");
}

void tst_PanelSearch::countFollowsTheLanguage()
{
    QFETCH(QString, words);
    QFETCH(bool, walks);
    QFETCH(QString, text);
    addRows("row", 3);
    show();
    openByKey();
    type(qPrintable(words));
    if (walks)
        press(Qt::Key_Down);
    QCOMPARE(count(), text);
    {
        const MarkingTranslator translator("Tessark::PropertyHost::SearchBar");
        QTRY_COMPARE(count(), QLatin1Char('[') + text + QLatin1Char(']'));
        QCOMPARE(searchField()->accessibleDescription(), count());

        searchField()->clear();
        QTRY_COMPARE(count(), QString());
    }

    QTRY_COMPARE(onlyChanged()->text(), name("Only changed"));
    QCOMPARE(count(), QString());
}

void tst_PanelSearch::labelsKeepTheirTexts()
{
    m_list->string(name("r"), name("<b>Bold</b> & plain"));
    m_list->group(name("A&B"), [&] { m_list->boolean(name("c"), name("C&D bold")); });
    show();
    const QString box = qobject_cast<QCheckBox *>(field(name("c")))->text();
    openByKey();

    type("bold");

    QVERIFY(label(name("<b>Bold</b> & plain:")));
    QCOMPARE(qobject_cast<QCheckBox *>(field(name("c")))->text(), box);
    QCOMPARE(count(), name("2 matches"));
    m_view->setSearchText(name("AB"));
    QCOMPARE(shown(), (QStringList{name("A&B"), name("c")}));
}

void tst_PanelSearch::emptyViewIsSearched()
{
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->openSearch();
    m_view->setSearchText(name("row1"));
    m_view->setOnlyChanged(true);
    m_view->setOnlyChanged(false);
    press(Qt::Key_Down);
    QCOMPARE(count(), QString());

    addRows("row", 2);
    show();
    QCOMPARE(shown(), QStringList{name("row1")});
    QCOMPARE(count(), name("1 match"));
    m_view->clear();
    QCOMPARE(count(), QString());
    m_view->closeSearch();
    QVERIFY(!searchField()->isVisible());
}

void tst_PanelSearch::viewDeletedWhileSearching_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("key");

    QTest::newRow("a row goes") << int(QEvent::HideToParent) << int(Qt::Key_1);
    QTest::newRow("a row comes back") << int(QEvent::ShowToParent) << int(Qt::Key_Backspace);
    QTest::newRow("all come back") << int(QEvent::ShowToParent) << int(Qt::Key_Escape);
}

void tst_PanelSearch::viewDeletedWhileSearching()
{
    QFETCH(int, event);
    QFETCH(int, key);
    m_list->group(name("G"), [&] { addRows("row", 5); });
    for (const bool deletes : {true, false}) {
        m_view = std::make_unique<PropertyPanelView>();
        show();
        field(name("row3"))->setFocus();
        openByKey();
        type(key == Qt::Key_1 ? "row" : "row1");
        PropertyList other;
        other.string(name("o"), name("row o"));
        const EventWatch watcher(field(name("row3")), QEvent::Type(event), [&] {
            if (deletes)
                m_view.reset();
            else
                m_view->setProperties(other, nullptr);
        });

        press(Qt::Key(key));

        QCOMPARE(!m_view, deletes);
        QVERIFY(deletes || field(name("o")));
        m_view.reset();
    }
}

void tst_PanelSearch::panelDeletedWhileSearching()
{
    addRows("row", 3);
    show();
    openByKey();
    type("row1");
    press(Qt::Key_Down);

    delete m_view->panel();
    type("2");
    press(Qt::Key_Down);
    press(Qt::Key_Escape);

    QVERIFY(!searchField()->isVisible());
    show();
    QCOMPARE(shown().size(), 3);
}

QTEST_MAIN(tst_PanelSearch)
#include "tst_PanelSearch.moc"
