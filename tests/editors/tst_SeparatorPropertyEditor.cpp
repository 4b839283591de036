#include "property/editors/SeparatorPropertyEditor.h"

#include "property/PropertyEditorPanel.h"
#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QFrame>
#include <QLabel>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Fixture : EditorFixture<SeparatorPropertyEditor, QFrame>
{
    Fixture()
        : EditorFixture(kPropertyTypeSeparator)
    {
    }
};

/// The texts of the labels in a panel of one separator; QLabel is itself a QFrame.
QStringList rowLabels(Property &separator)
{
    const PropertyEditorPanel panel({&separator}, nullptr, nullptr);
    QStringList texts;
    for (const QLabel *label : panel.findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

} // namespace

class tst_SeparatorPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsAHorizontalLine();
    void neverHasAValue();
    void nothingTheUserDoesEmits();
    void hintsAreThoseOfTheProperty();
    void isALabelledRow_data();
    void isALabelledRow();
    void panelShowsTheLine();
};

void tst_SeparatorPropertyEditor::drawsAHorizontalLine()
{
    Fixture separator;

    const QFrame *line = separator.build();

    QVERIFY(line);
    QCOMPARE(line->metaObject(), &QFrame::staticMetaObject);
    QCOMPARE(line->frameStyle(), 4);
    QCOMPARE(line->frameShape(), QFrame::HLine);
}

void tst_SeparatorPropertyEditor::neverHasAValue()
{
    Fixture separator;

    separator.editor->setValue(1);
    QVERIFY(!separator.editor->value().isValid());
    separator.build();
    separator.editor->setValue(QStringLiteral("text"));

    QVERIFY(!separator.editor->value().isValid());
}

void tst_SeparatorPropertyEditor::nothingTheUserDoesEmits()
{
    Fixture separator;
    QFrame *line = separator.build();
    SignalLog log(separator.editor.get());

    QTest::mouseClick(line, Qt::LeftButton);
    QTest::keyClick(line, Qt::Key_Return);

    QCOMPARE(log.take(), QStringList());
}

void tst_SeparatorPropertyEditor::hintsAreThoseOfTheProperty()
{
    Fixture separator;

    QVERIFY(!separator.editor->hint(kPropertyHintFullWidth).isValid());
    separator.property.setHint(kPropertyHintFullWidth, true);
    QCOMPARE(separator.editor->hint(kPropertyHintFullWidth), QVariant(true));
}

void tst_SeparatorPropertyEditor::isALabelledRow_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("fullWidth");
    QTest::addColumn<QStringList>("labels");
    const QString extras = QStringLiteral("Extras");
    QTest::newRow("label") << extras << false << QStringList{QStringLiteral("Extras:")};
    QTest::newRow("empty label") << QString() << false << QStringList{QString()};
    QTest::newRow("full width") << extras << true << QStringList{};
}

void tst_SeparatorPropertyEditor::isALabelledRow()
{
    QFETCH(QString, label);
    QFETCH(bool, fullWidth);
    QFETCH(QStringList, labels);
    Property separator(QStringLiteral("item"), label, kPropertyTypeSeparator);
    if (fullWidth)
        separator.setHint(kPropertyHintFullWidth, true);

    QCOMPARE(rowLabels(separator), labels);
}

void tst_SeparatorPropertyEditor::panelShowsTheLine()
{
    Property separator(QStringLiteral("item"), QStringLiteral("Extras"), kPropertyTypeSeparator);
    PropertyEditorPanel panel({&separator}, nullptr, nullptr);
    panel.resize(300, 50);
    panel.show();

    QVector<PropertyEditor *> editors;
    panel.getEditors(editors, kPropertyTypeSeparator);
    QCOMPARE(editors.size(), 1);
    const QWidget *line = editors.first()->widget(nullptr);
    const QLabel *label = panel.findChild<QLabel *>();

    QVERIFY(line->isVisibleTo(&panel));
    QVERIFY(label && line->x() >= label->geometry().right());
}

QTEST_MAIN(tst_SeparatorPropertyEditor)
#include "tst_SeparatorPropertyEditor.moc"
