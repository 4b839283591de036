#include <host/NumberEntry.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include "support/MarkingTranslator.h"
#include "support/PropertySet.h"
#include "support/RecordingDelegate.h"

#include <QAction>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Tessark::PropertyUI;
using Tessark::PropertyHost::NumberEntry;
using Tessark::PropertyHost::UndoDelegate;
using TestSupport::RecordingDelegate;

namespace {

using Flags = QVector<int>;

/// A panel of number rows with and without NumberEntry, undo behind it.
struct Subject
{
    Subject()
    {
        set.add(QStringLiteral("count"), QStringLiteral("Count"), kPropertyTypeInteger)
            .setRange(0, 1000);
        set.add(QStringLiteral("gain"), QStringLiteral("Gain"), kPropertyTypeFloat)
            .setRange(-100.0, 100.0);
        set.add(QStringLiteral("share"), QStringLiteral("My Share"), kPropertyTypePercent)
            .setRange(0.0, 2.0);
        set.add(QStringLiteral("place"), QStringLiteral("Place"), kPropertyTypeVec3)
            .setRange(-1000.0F, 1000.0F);
        set.add(QStringLiteral("size"), QStringLiteral("Size"), kPropertyTypeSize)
            .setHint(kPropertyHintAspectRatio, QSize(2, 1));
        set.add(QStringLiteral("depth"), QStringLiteral("Depth"), kPropertyTypeFloat)
            .setRange(0.0, 50.0)
            .setHint(kPropertyHintSuffix, QStringLiteral(" mm"));
        store.values = {{QStringLiteral("count"), 40},
                        {QStringLiteral("gain"), 1.23456789},
                        {QStringLiteral("share"), 0.25},
                        {QStringLiteral("place"), QVector3D(1, 2, 3)},
                        {QStringLiteral("size"), QSize(200, 100)},
                        {QStringLiteral("depth"), 10.0}};
    }

    Subject(const Subject &) = delete;
    Subject &operator=(const Subject &) = delete;

    void show(bool withEntry = true)
    {
        panel = std::make_unique<PropertyEditorPanel>(set.list(), &undo, nullptr);
        if (withEntry)
            entry = std::make_unique<NumberEntry>(panel.get());
        panel->updateUI();
        panel->resize(500, panel->sizeHint().height());
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        store.changes.clear();
    }

    QAbstractSpinBox *field(const char *name, int index = 0) const
    {
        QVector<PropertyEditor *> editors;
        panel->getEditors(editors, QString());
        for (PropertyEditor *editor : std::as_const(editors)) {
            if (editor->editedProperty()->name == QLatin1String(name))
                return editor->widget(nullptr)->findChildren<QAbstractSpinBox *>().at(index);
        }
        return nullptr;
    }

    /// Replaces the number of a field by typing, and leaves the cursor there.
    QAbstractSpinBox *type(const char *name, const QString &text, int index = 0) const
    {
        QAbstractSpinBox *const box = field(name, index);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
        return box;
    }

    /// The preview that is shown, or null.
    QLabel *preview() const
    {
        const auto previews = panel->findChildren<QLabel *>(QStringLiteral("numberPreview"));
        for (QLabel *preview : previews) {
            if (preview->isVisible())
                return preview;
        }
        return nullptr;
    }
    QString previewText() const { return preview() ? preview()->text() : QString(); }
    QString log() const { return store.log().join(QLatin1Char(' ')); }

    TestSupport::PropertySet set;
    RecordingDelegate store;
    QUndoStack stack;
    UndoDelegate undo{&store, &stack};
    std::unique_ptr<PropertyEditorPanel> panel;
    std::unique_ptr<NumberEntry> entry;
};

double numberIn(const QAbstractSpinBox *box)
{
    if (const auto *const integer = qobject_cast<const QSpinBox *>(box))
        return integer->value();
    return qobject_cast<const QDoubleSpinBox *>(box)->value();
}

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_NumberEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void returnCommitsTheResult_data();
    void returnCommitsTheResult();
    void resultIsOneEdit();
    void digitsBeforeAreOfTheSameRun();
    void editsAfterReturnAreAnotherRun();
    void leavingCommitsTheResult();
    void resultThatChangesNothingIsNoEdit();
    void escapeGivesBackTheValue_data();
    void escapeGivesBackTheValue();
    void escapeGivesBackBothSidesOfASize();
    void escapeWithoutAValueOfTheHost();
    void escapeWithoutAnotherFieldOfTheRow();
    void escapeIsNotForTheDialog();
    void escapeOfAPlainNumberIsForTheDialog();
    void mistakeIsToldAndKept();
    void mistakeGivesBackTheValueWhenLeft();
    void previewFollowsTheTyping();
    void previewTellsTheRange_data();
    void previewTellsTheRange();
    void previewIsAccessible();
    void previewLiesInThePanel();
    void previewLiesWhereThePanelIsSeen();
    void percentagesAreOfTheNumberBefore();
    void numberAfterArrowsIsTheNumberBefore();
    void ownRowIsReadAsItWasBefore();
    void operatorBehindAllDecimals();
    void operatorCanBeRemoved();
    void otherLettersAreRefused();
    void expressionIsPasted();
    void refreshLeavesTheTextAlone();
    void refreshWithANewNumberIsTheNumberBefore();
    void menuOfTheFieldLeavesTheText();
    void arrowsLeaveTheExpression();
    void numberOfTheHostLeavesTheExpression();
    void typeWhoseFactoryMakesNothing();
    void plainTypingIsAsWithout_data();
    void plainTypingIsAsWithout();
    void deletedEntryLeavesThePlainPanel();
    void deletedEntryTakesAnExpressionAway();
    void panelDeletedInTheCallback_data();
    void panelDeletedInTheCallback();
    void pressElsewhereCommitsTheResult();
    void pressInTheFieldLeavesTheExpression();
    void panelDeletedByAPressElsewhere();
    void panelDeletedWhileAnExpressionIsTyped();
    void panelDeletedWhenAskedForTheValue();
    void entryDeletedInTheCallback();
    void fieldWidgetDeleted();
    void textsAreTranslated();
};

void tst_NumberEntry::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_NumberEntry::returnCommitsTheResult_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("number");

    const auto row = [](const char *field, int index, const char *typed, double number) {
        QTest::addRow("%s in %s %d", typed, field, index)
            << QByteArray(field) << index << text(typed) << number;
    };
    row("count", 0, "=2*3", 6);
    row("count", 0, "7/2", 4);
    row("count", 0, "=5000", 1000);
    row("count", 0, "=-5", 0);
    row("count", 0, "+=2", 42);
    row("count", 0, "*=2", 80);
    row("count", 0, "50%", 20);
    row("count", 0, "=gain+10", 11);
    row("count", 0, "=Depth", 10);
    row("count", 0, "=`my share`", 25);
    row("count", 0, "=place.z*2", 6);
    row("count", 0, "=size.width/2", 100);
    row("count", 0, "=size.h", 100);
    row("gain", 0, "1/3", 0.3333);
    row("gain", 0, "=1,5*2", 3);
    row("gain", 0, "-=2", -0.7654);
    row("gain", 0, "-count/2", -20);
    row("share", 0, "50%", 50);
    row("share", 0, "50%/3", 16.67);
    row("share", 0, "+=10", 35);
    row("place", 1, "=x+z", 4);
    row("place", 0, "y*10", 20);
    row("size", 0, "=h*3", 300);
    row("size", 1, "=width/4", 50);
    row("depth", 0, "5mm*2", 10);
    row("depth", 0, "=2*(3mm + 4)", 14);
}

void tst_NumberEntry::returnCommitsTheResult()
{
    QFETCH(QByteArray, field);
    QFETCH(int, index);
    QFETCH(QString, typed);
    QFETCH(double, number);
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type(field.constData(), typed, index);
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), number);
    QVERIFY(box->hasFocus());
    QVERIFY(subject.previewText().isEmpty());
    const auto *const lineEdit = box->findChild<QLineEdit *>();
    QVERIFY(!lineEdit->text().contains(QLatin1Char('=')));
    QVERIFY(lineEdit->hasSelectedText());
}

void tst_NumberEntry::resultIsOneEdit()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));
    QVERIFY(subject.store.changes.isEmpty());
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(subject.log(), text("count=6/0"));
    QCOMPARE(subject.stack.count(), 1);
}

void tst_NumberEntry::digitsBeforeAreOfTheSameRun()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("12*3"));
    QCOMPARE(subject.log(), text("count=1/0 count=12/1"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(subject.log(), text("count=1/0 count=12/1 count=36/1"));
    QCOMPARE(subject.stack.count(), 1);
    subject.stack.undo();
    QCOMPARE(subject.store.values.value(text("count")), QVariant(40));
}

void tst_NumberEntry::editsAfterReturnAreAnotherRun()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));
    QTest::keyClick(box, Qt::Key_Return);

    QTest::keyClicks(box, text("=7*7"));
    QTest::keyClick(box, Qt::Key_Enter);

    QCOMPARE(subject.log(), text("count=6/0 count=49/0"));
    QCOMPARE(subject.stack.count(), 2);
}

void tst_NumberEntry::leavingCommitsTheResult()
{
    Subject subject;
    subject.show();

    subject.type("place", text("=2*3"), 1);
    subject.field("count")->setFocus();

    QCOMPARE(subject.store.flags(), Flags{0});
    QCOMPARE(subject.store.values.value(text("place")).value<QVector3D>(), QVector3D(1, 6, 3));
    QCOMPARE(subject.stack.count(), 1);
    QVERIFY(subject.previewText().isEmpty());
    subject.type("place", text("1"), 1);
    QCOMPARE(subject.store.flags(), (Flags{0, 0}));
}

void tst_NumberEntry::resultThatChangesNothingIsNoEdit()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("=20*2"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(box->text(), text("40"));
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_NumberEntry::escapeGivesBackTheValue_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Flags>("flags");

    QTest::newRow("without digits before") << text("=2*3") << Flags();
    QTest::newRow("with digits before") << text("2*3") << Flags{0, 1};
    QTest::newRow("with a mistake") << text("2*)") << Flags{0, 1};
}

void tst_NumberEntry::escapeGivesBackTheValue()
{
    QFETCH(QString, typed);
    QFETCH(Flags, flags);
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("gain", typed);
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(box->text(), text("1.2346"));
    QVERIFY(subject.previewText().isEmpty());
    QCOMPARE(subject.store.flags(), flags);
    // As it was, not as the field rounds it.
    QCOMPARE(subject.store.values.value(text("gain")), QVariant(1.23456789));
    QCOMPARE(subject.stack.count(), 0);
    QVERIFY(box->hasFocus());
}

void tst_NumberEntry::escapeGivesBackBothSidesOfASize()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("size", text("8*3"));
    QCOMPARE(numberIn(subject.field("size", 1)), 4.0);
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(numberIn(box), 200.0);
    QCOMPARE(numberIn(subject.field("size", 1)), 100.0);
    QCOMPARE(subject.store.values.value(text("size")), QVariant(QSize(200, 100)));
}

/// There is nothing but the number of the field to give back.
void tst_NumberEntry::escapeWithoutAValueOfTheHost()
{
    Subject subject;
    subject.store.values.remove(text("count"));
    subject.show();
    const double before = numberIn(subject.field("count"));

    QAbstractSpinBox *const box = subject.type("count", text("2*3"));
    QCOMPARE(subject.log(), text("count=2/0"));
    subject.store.values.remove(text("count"));
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(numberIn(box), before);
    QCOMPARE(subject.log(), text("count=2/0 count=0/1"));
}

void tst_NumberEntry::escapeWithoutAnotherFieldOfTheRow()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("place", text("=2*3"), 1);

    delete subject.field("place", 0);
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(numberIn(box), 2.0);
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_NumberEntry::escapeIsNotForTheDialog()
{
    Subject subject;
    subject.show();
    QWidget dialog;
    auto *const layout = new QVBoxLayout(&dialog);
    layout->addWidget(subject.panel.get());
    int escapes = 0;
    auto *const escape = new QAction(&dialog);
    escape->setShortcut(Qt::Key_Escape);
    dialog.addAction(escape);
    connect(escape, &QAction::triggered, this, [&escapes] { ++escapes; });
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));

    QAbstractSpinBox *const box = subject.type("count", text("=2"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QCOMPARE(escapes, 0);
    QCOMPARE(box->text(), text("40"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QCOMPARE(escapes, 1);
    subject.panel.reset();
}

void tst_NumberEntry::escapeOfAPlainNumberIsForTheDialog()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("7"));
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(box->text(), text("7"));
    QCOMPARE(subject.log(), text("count=7/0"));
}

void tst_NumberEntry::mistakeIsToldAndKept()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("3*width+1"));
    QCOMPARE(subject.previewText(), text("There is no number named \"width\""));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(box->text(), text("3*width+1"));
    QCOMPARE(box->findChild<QLineEdit *>()->cursorPosition(), 2);
    QCOMPARE(subject.log(), text("count=3/0"));
    // The run goes on: what is right at last belongs to it.
    box->selectAll();
    QTest::keyClicks(box, text("3*4"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(subject.log(), text("count=3/0 count=12/1"));
}

void tst_NumberEntry::mistakeGivesBackTheValueWhenLeft()
{
    Subject subject;
    subject.show();

    const QAbstractSpinBox *const box = subject.type("gain", text("2*"));
    subject.field("count")->setFocus();

    QCOMPARE(box->text(), text("1.2346"));
    QCOMPARE(subject.store.values.value(text("gain")), QVariant(1.23456789));
    QCOMPARE(subject.store.flags(), (Flags{0, 1}));
    QCOMPARE(subject.stack.count(), 0);
}

void tst_NumberEntry::previewFollowsTheTyping()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("depth", text("2"));
    QVERIFY(subject.previewText().isEmpty());
    QTest::keyClicks(box, text("*"));
    QCOMPARE(subject.previewText(), text("…"));
    QTest::keyClicks(box, text("3"));
    QCOMPARE(subject.previewText(), text("= 6 mm"));
    QTest::keyClicks(box, text(")"));
    QCOMPARE(subject.previewText(), text("\")\" is not expected here"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(subject.previewText(), text("= 6 mm"));
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClick(box, Qt::Key_Backspace);
    QVERIFY(subject.previewText().isEmpty());
    QVERIFY(box->hasFocus());
}

void tst_NumberEntry::previewTellsTheRange_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("rounded") << QByteArray("count") << text("7/2") << text("= 4");
    QTest::newRow("large") << QByteArray("count") << text("=999*9") << text("= 1000 (largest)");
    QTest::newRow("small") << QByteArray("count") << text("=0-1") << text("= 0 (smallest)");
    QTest::newRow("largest") << QByteArray("count") << text("=1000") << text("= 1000");
    QTest::newRow("percent") << QByteArray("share") << text("50%/3") << text("= 16.67 %");
}

void tst_NumberEntry::previewTellsTheRange()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    Subject subject;
    subject.show();

    subject.type(field.constData(), typed);

    QCOMPARE(subject.previewText(), shown);
}

void tst_NumberEntry::previewIsAccessible()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.field("count");
    box->setAccessibleDescription(text("How many"));

    subject.type("count", text("=2*3"));
    QCOMPARE(box->accessibleDescription(), text("= 6"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(box->accessibleDescription(), text("How many"));
}

void tst_NumberEntry::previewLiesInThePanel()
{
    Subject subject;
    subject.show();

    for (const char *const name : {"count", "depth"}) {
        const QAbstractSpinBox *const box = subject.type(name, text("=2*3"));
        const QRect field(box->mapTo(subject.panel.get(), QPoint()), box->size());
        const QRect preview = subject.preview()->geometry();
        QVERIFY(subject.panel->rect().contains(preview));
        QVERIFY(!preview.intersects(field));
        QVERIFY(preview.top() == field.bottom() + 1 || preview.bottom() == field.top() - 1);
    }
}

/// As in a view that scrolls, here at the end of what it shows.
void tst_NumberEntry::previewLiesWhereThePanelIsSeen()
{
    QWidget window;
    Subject subject;
    subject.show();
    subject.panel->setParent(&window);
    subject.panel->show();
    window.resize(subject.panel->width(), 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QWidget *const field = subject.field("depth");
    const int end = field->mapTo(subject.panel.get(), field->rect().bottomLeft()).y();
    subject.panel->move(0, window.height() - end - 2);

    const QAbstractSpinBox *const box = subject.type("depth", text("=2*3"));

    const QRect place(box->mapTo(&window, QPoint()), box->size());
    const QLabel *const preview = subject.preview();
    QVERIFY(preview);
    const QRect shown(preview->mapTo(&window, QPoint()), preview->size());
    QVERIFY(window.rect().contains(shown));
    QCOMPARE(shown.bottom(), place.top() - 1);
}

void tst_NumberEntry::percentagesAreOfTheNumberBefore()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("50"));
    QCOMPARE(numberIn(box), 50.0); // an edit, as ever
    QTest::keyClicks(box, text("%"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(numberIn(box), 20.0);

    // From now on it is of 20.
    QTest::keyClicks(box, text("10%"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(numberIn(box), 2.0);
}

void tst_NumberEntry::numberAfterArrowsIsTheNumberBefore()
{
    Subject subject;
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("70"));
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(numberIn(box), 80.0);
    box->selectAll();
    QTest::keyClicks(box, text("50%"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), 40.0);
}

void tst_NumberEntry::ownRowIsReadAsItWasBefore()
{
    Subject subject;
    subject.show();

    // The first digit takes the height with it.
    QAbstractSpinBox *const box = subject.type("size", text("2*h+w"));
    QCOMPARE(numberIn(subject.field("size", 1)), 1.0);
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), 400.0);
}

void tst_NumberEntry::operatorBehindAllDecimals()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.field("gain");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);

    QTest::keyClicks(box, text("*2"));
    QCOMPARE(box->text(), text("1.2346*2"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), 2.4692);
    QVERIFY(box->keyboardTracking());
}

void tst_NumberEntry::operatorCanBeRemoved()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("depth", text("12*3"));

    // 123 is beyond the range: no number that could be typed, but one that can come about.
    QTest::keyClick(box, Qt::Key_Left);
    QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(box->text(), text("123 mm"));
    QCOMPARE(subject.previewText(), text("= 50 mm (largest)"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), 50.0);
}

void tst_NumberEntry::otherLettersAreRefused()
{
    Subject subject;
    subject.show();

    const QAbstractSpinBox *const box = subject.type("count", text("=#1$!2&"));

    QCOMPARE(box->text(), text("=12"));
}

void tst_NumberEntry::expressionIsPasted()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.field("count");
    box->setFocus();
    box->selectAll();
    QGuiApplication::clipboard()->setText(text("(1+2)*50%"));

    QTest::keySequence(box, QKeySequence::Paste);
    QCOMPARE(subject.previewText(), text("= 2"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(subject.log(), text("count=2/0"));
}

void tst_NumberEntry::refreshLeavesTheTextAlone()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));
    QTest::keyClick(box, Qt::Key_Left);

    subject.panel->updateUI();

    QTRY_COMPARE(box->text(), text("=2*3"));
    QCOMPARE(subject.previewText(), text("= 6"));
    QTest::keyClicks(box, text("1"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(subject.store.changes.size(), 1);
}

void tst_NumberEntry::refreshWithANewNumberIsTheNumberBefore()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=50%"));

    subject.store.values[text("count")] = 300;
    subject.panel->updateUI();
    QTRY_COMPARE(subject.previewText(), text("= 150"));
    QTest::keyClick(box, Qt::Key_Escape);

    QCOMPARE(numberIn(box), 300.0);
    QCOMPARE(subject.store.values.value(text("count")), QVariant(300));
}

void tst_NumberEntry::menuOfTheFieldLeavesTheText()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));

    // What Qt sends when a menu opens and closes.
    QFocusEvent out(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(box, &out);
    QTRY_COMPARE(box->text(), text("=2*3"));
    QFocusEvent in(QEvent::FocusIn, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(box, &in);

    QTRY_COMPARE(box->text(), text("=2*3"));
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_NumberEntry::arrowsLeaveTheExpression()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));

    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
        QTest::keyClick(box, key);

    QCOMPARE(box->text(), text("=2*3"));
    QCOMPARE(subject.previewText(), text("= 6"));
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_NumberEntry::numberOfTheHostLeavesTheExpression()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));

    qobject_cast<QSpinBox *>(box)->setValue(7);

    QCOMPARE(box->text(), text("7"));
    QVERIFY(subject.previewText().isEmpty());
    QCOMPARE(subject.log(), text("count=7/0"));
}

/// The panel has no widget for such a row, and names still find their fields.
void tst_NumberEntry::typeWhoseFactoryMakesNothing()
{
    const QString type = text("tst_NumberEntry/nothing");
    PropertyEditorRegistry::Instance()->registerPropertyEditor(
        type, [](Property *) -> PropertyEditor * { return nullptr; });
    Subject subject;
    subject.set.add(text("nothing"), text("Nothing"), type);
    subject.show();

    QAbstractSpinBox *const box = subject.type("count", text("=depth*2"));
    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(numberIn(box), 20.0);
}

void tst_NumberEntry::plainTypingIsAsWithout_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");

    const auto row = [](const char *field, const char *typed) {
        QTest::addRow("%s in %s", typed, field) << QByteArray(field) << text(typed);
    };
    row("count", "12");
    row("count", "99999");
    row("count", "-5");
    row("count", "1.5");
    row("count", "1,500");
    row("gain", "3.14159265");
    row("gain", "-2.5");
    row("gain", "1..5");
    row("gain", "1,5");
    row("gain", ".5");
    row("gain", "999");
    row("share", "12.345");
    row("depth", "60");
    row("depth", "-1");
    row("place", "0.123456");
}

void tst_NumberEntry::plainTypingIsAsWithout()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QStringList texts;
    QStringList logs;

    for (const bool withEntry : {false, true}) {
        Subject subject;
        subject.show(withEntry);
        QAbstractSpinBox *const box = subject.type(field.constData(), typed);
        QString seen = box->text();
        QTest::keyClick(box, Qt::Key_Backspace);
        QTest::keyClick(box, Qt::Key_Left);
        QTest::keyClicks(box, text("1"));
        seen += QLatin1Char('|') + box->text();
        QTest::keyClick(box, Qt::Key_Return);
        QTest::keyClick(box, Qt::Key_Up);
        QTest::keyClicks(box, text("2"));
        seen += QLatin1Char('|') + box->text();
        subject.field(field == "count" ? "gain" : "count")->setFocus();
        texts.append(seen + QLatin1Char('|') + box->text());
        logs.append(subject.log());
        QVERIFY(!subject.preview());
    }

    QCOMPARE(texts.at(1), texts.at(0));
    QCOMPARE(logs.at(1), logs.at(0));
}

void tst_NumberEntry::deletedEntryLeavesThePlainPanel()
{
    Subject subject;
    subject.show();
    subject.type("count", text("=2"));
    QTest::keyClick(subject.field("count"), Qt::Key_Return);

    subject.entry.reset();
    const QAbstractSpinBox *const box = subject.type("count", text("=3*4"));

    QCOMPARE(box->text(), text("34"));
}

void tst_NumberEntry::deletedEntryTakesAnExpressionAway()
{
    Subject subject;
    subject.show();
    const QAbstractSpinBox *const box = subject.type("count", text("12*3"));

    subject.entry.reset();

    QCOMPARE(box->text(), text("12"));
    QVERIFY(box->keyboardTracking());
    QVERIFY(subject.previewText().isEmpty());
    QCOMPARE(subject.log(), text("count=1/0 count=12/1"));
}

void tst_NumberEntry::panelDeletedInTheCallback_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("entryIsThePanels");

    for (const bool isThePanels : {false, true}) {
        const char *const owner = isThePanels ? "the panel's" : "the host's";
        QTest::addRow("Return, %s", owner) << int(Qt::Key_Return) << text("=2*3") << isThePanels;
        QTest::addRow("Tab, %s", owner) << int(Qt::Key_Tab) << text("=2*3") << isThePanels;
        QTest::addRow("Escape, %s", owner) << int(Qt::Key_Escape) << text("7*3") << isThePanels;
    }
}

void tst_NumberEntry::panelDeletedInTheCallback()
{
    QFETCH(int, key);
    QFETCH(QString, typed);
    QFETCH(bool, entryIsThePanels);
    Subject subject;
    subject.show();
    if (entryIsThePanels)
        subject.entry.release()->setParent(subject.panel.get());
    QAbstractSpinBox *const box = subject.type("count", typed);
    subject.store.changes.clear();
    subject.store.onSetValue = [&subject] { subject.panel.reset(); };

    QTest::keyPress(box, Qt::Key(key));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!subject.panel);
    QCOMPARE(subject.store.changes.size(), 1);
}

void tst_NumberEntry::pressElsewhereCommitsTheResult()
{
    Subject subject;
    subject.show();
    subject.type("count", text("12*3"));
    const QAbstractSpinBox *const gain = subject.field("gain");

    QTest::mouseClick(subject.panel->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      gain->mapTo(subject.panel.get(), QPoint(5, gain->height() / 2)));

    QTRY_VERIFY(gain->hasFocus());
    QCOMPARE(subject.log(), text("count=1/0 count=12/1 count=36/1"));
    QCOMPARE(subject.stack.count(), 1);
}

void tst_NumberEntry::pressInTheFieldLeavesTheExpression()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=12*3"));

    QTest::mouseClick(subject.panel->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      box->mapTo(subject.panel.get(), QPoint(3, box->height() / 2)));
    QTest::keyClicks(box, text("1+"));

    QVERIFY(box->text().contains(text("12*3")));
    QVERIFY(subject.store.changes.isEmpty());
}

// The press goes to the window, which is gone then, or to what is left of it.
void tst_NumberEntry::panelDeletedByAPressElsewhere()
{
    Subject subject;
    subject.show();
    subject.type("count", text("=2*3"));
    const QAbstractSpinBox *const gain = subject.field("gain");
    const QPoint position = gain->mapTo(subject.panel.get(), QPoint(5, gain->height() / 2));
    subject.store.onSetValue = [&subject] { subject.panel.reset(); };

    QTest::mousePress(subject.panel->windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(!subject.panel);
    QCOMPARE(subject.log(), text("count=6/0"));
}

void tst_NumberEntry::panelDeletedWhileAnExpressionIsTyped()
{
    for (const bool entryIsThePanels : {false, true}) {
        Subject subject;
        subject.show();
        if (entryIsThePanels)
            subject.entry.release()->setParent(subject.panel.get());
        subject.type("gain", text("7*3"));
        subject.store.changes.clear();

        subject.panel.reset();
        QCoreApplication::processEvents();

        QVERIFY(subject.store.changes.isEmpty());
    }
}

void tst_NumberEntry::panelDeletedWhenAskedForTheValue()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.field("count");
    box->setFocus();
    subject.store.onValue = [&subject] {
        subject.store.onValue = nullptr;
        subject.panel.reset();
    };

    QTest::keyPress(box, Qt::Key_1);

    QVERIFY(!subject.panel);
    QVERIFY(subject.store.changes.isEmpty());
}

void tst_NumberEntry::entryDeletedInTheCallback()
{
    Subject subject;
    subject.show();
    QAbstractSpinBox *const box = subject.type("count", text("=2*3"));
    subject.store.onSetValue = [&subject] { subject.entry.reset(); };

    QTest::keyClick(box, Qt::Key_Return);

    QCOMPARE(box->text(), text("6"));
    QCOMPARE(subject.log(), text("count=6/0"));
}

void tst_NumberEntry::fieldWidgetDeleted()
{
    Subject subject;
    subject.show();
    subject.type("gain", text("=2*3"));

    delete subject.field("gain")->parentWidget();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QAbstractSpinBox *const box = subject.type("count", text("=gain"));

    QCOMPARE(subject.previewText(), text("…"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(subject.previewText(), text("There is no number named \"gain\""));
}

void tst_NumberEntry::textsAreTranslated()
{
    const MarkingTranslator translator("Tessark::PropertyHost::NumberField");
    Subject subject;
    subject.show();

    subject.type("count", text("=5000"));

    QCOMPARE(subject.previewText(), text("[= 1000 (largest)]"));
}

QTEST_MAIN(tst_NumberEntry)
#include "tst_NumberEntry.moc"
