#include "property/editors/GroupPropertyEditor.h"

#include "support/EditorFixture.h"
#include "support/SignalLog.h"

#include <QCheckBox>
#include <QFrame>
#include <QPointer>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

struct Begin : EditorFixture<GroupPropertyEditor, QCheckBox>
{
    Begin()
        : EditorFixture(kPropertyTypeBeginGroup)
    {
    }

    void click() { QTest::keyClick(build(), Qt::Key_Space); }
};

using End = EditorFixture<GroupPropertyEditor, QFrame>;

QStringList dynamicProperties(const QObject *object)
{
    QStringList names;
    for (const QByteArray &name : object->dynamicPropertyNames())
        names.append(QString::fromLatin1(name));
    names.sort();
    return names;
}

} // namespace

class tst_GroupPropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginIsACheckedBoxWithTheLabel();
    void beginIsMarkedForLayoutAndStyleSheets();
    void endIsAFrameThatIsNotSeen_data();
    void endIsAFrameThatIsNotSeen();
    void valueBeforeTheWidgetIsTrue_data();
    void valueBeforeTheWidgetIsTrue();
    void endStaysTrue();
    void openStateBelongsToTheUser_data();
    void openStateBelongsToTheUser();
    void togglingEmitsOnce();
    void alwaysTakesTheFullWidth_data();
    void alwaysTakesTheFullWidth();
    void otherHintsAreThoseOfTheProperty();
    void enabledHintIsNotRead();
    void revertEmitsButDoesNotClose();
    void editorMayDieWhenToggled();
    void boxMayDieLaterWhenToggled();
};

void tst_GroupPropertyEditor::beginIsACheckedBoxWithTheLabel()
{
    Begin group;

    const QCheckBox *box = group.build();

    QVERIFY(box);
    QCOMPARE(box->metaObject(), &QCheckBox::staticMetaObject);
    QCOMPARE(box->text(), QStringLiteral("Label"));
    QVERIFY(box->isChecked());
    QCOMPARE(group.editor->value(), QVariant(true));
}

void tst_GroupPropertyEditor::beginIsMarkedForLayoutAndStyleSheets()
{
    Begin group;

    const QCheckBox *box = group.build();

    QCOMPARE(box->property("disclosure"), QVariant(true));
    QCOMPARE(box->property("beginGroup"), QVariant(true));
    const QStringList expected = {QStringLiteral("beginGroup"), QStringLiteral("disclosure")};
    QCOMPARE(dynamicProperties(box), expected);
}

void tst_GroupPropertyEditor::endIsAFrameThatIsNotSeen_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("end_group") << kPropertyTypeEndGroup;
    QTest::newRow("any other type") << QStringLiteral("host/group");
}

void tst_GroupPropertyEditor::endIsAFrameThatIsNotSeen()
{
    QFETCH(QString, type);
    End group(type);

    const QFrame *frame = group.build();

    QVERIFY(frame);
    QCOMPARE(frame->metaObject(), &QFrame::staticMetaObject);
    QCOMPARE(frame->frameStyle(), 0);
    QCOMPARE(frame->property("endGroup"), QVariant(true));
    QCOMPARE(dynamicProperties(frame), QStringList{QStringLiteral("endGroup")});
}

void tst_GroupPropertyEditor::valueBeforeTheWidgetIsTrue_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("begin_group") << kPropertyTypeBeginGroup;
    QTest::newRow("end_group") << kPropertyTypeEndGroup;
}

void tst_GroupPropertyEditor::valueBeforeTheWidgetIsTrue()
{
    QFETCH(QString, type);
    End group(type);

    group.editor->setValue(false);

    QCOMPARE(group.editor->value().userType(), int(QMetaType::Bool));
    QCOMPARE(group.editor->value(), QVariant(true));
}

void tst_GroupPropertyEditor::endStaysTrue()
{
    End group(kPropertyTypeEndGroup);
    group.build();
    SignalLog log(group.editor.get());

    group.editor->setValue(false);

    QCOMPARE(group.editor->value(), QVariant(true));
    QCOMPARE(log.take(), QStringList());
}

void tst_GroupPropertyEditor::openStateBelongsToTheUser_data()
{
    QTest::addColumn<bool>("closedByUser");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("open stays open") << false << QVariant(false);
    QTest::newRow("open stays open without a value") << false << QVariant();
    QTest::newRow("closed stays closed") << true << QVariant(true);
}

void tst_GroupPropertyEditor::openStateBelongsToTheUser()
{
    QFETCH(bool, closedByUser);
    QFETCH(QVariant, value);
    Begin group;
    const QCheckBox *box = group.build();
    if (closedByUser)
        group.click();
    SignalLog log(group.editor.get());

    group.editor->setValue(value);

    QCOMPARE(box->isChecked(), !closedByUser);
    QCOMPARE(group.editor->value(), QVariant(!closedByUser));
    QCOMPARE(log.take(), QStringList());
}

void tst_GroupPropertyEditor::togglingEmitsOnce()
{
    Begin group;
    group.build();
    SignalLog log(group.editor.get());

    group.click();
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(group.editor->value(), QVariant(false));

    group.click();
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
    QCOMPARE(group.editor->value(), QVariant(true));
}

void tst_GroupPropertyEditor::alwaysTakesTheFullWidth_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QVariant>("hint");
    QTest::newRow("begin") << kPropertyTypeBeginGroup << QVariant();
    QTest::newRow("begin, against the host") << kPropertyTypeBeginGroup << QVariant(false);
    QTest::newRow("end") << kPropertyTypeEndGroup << QVariant();
    QTest::newRow("end, against the host") << kPropertyTypeEndGroup << QVariant(false);
}

void tst_GroupPropertyEditor::alwaysTakesTheFullWidth()
{
    QFETCH(QString, type);
    QFETCH(QVariant, hint);
    End group(type);
    if (hint.isValid())
        group.property.setHint(kPropertyHintFullWidth, hint);

    QCOMPARE(group.editor->hint(kPropertyHintFullWidth), QVariant(true));
}

void tst_GroupPropertyEditor::otherHintsAreThoseOfTheProperty()
{
    Begin group;
    group.property.setHint(kPropertyHintStyleSheet, QStringLiteral("style"));

    QCOMPARE(group.editor->hint(kPropertyHintStyleSheet), QVariant(QStringLiteral("style")));
    QVERIFY(!group.editor->hint(kPropertyHintSize).isValid());
}

void tst_GroupPropertyEditor::enabledHintIsNotRead()
{
    Begin group;
    group.property.setHint(kPropertyHintEnabled, false);

    const QCheckBox *box = group.build();
    group.editor->propertyChanged();

    QVERIFY(box->isEnabled());
}

void tst_GroupPropertyEditor::revertEmitsButDoesNotClose()
{
    Begin group;
    group.property.setDefaultValue(false);
    const QCheckBox *box = group.build();
    SignalLog log(group.editor.get());

    group.editor->revertToDefaultValue();

    QVERIFY(box->isChecked());
    QCOMPARE(log.take(), QStringList{QStringLiteral("value")});
}

void tst_GroupPropertyEditor::editorMayDieWhenToggled()
{
    Begin group;
    QCheckBox *box = group.build();
    connect(group.editor.get(), &PropertyEditor::valueChanged, this,
            [&group] { group.editor.reset(); });

    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(!group.editor);
    QTest::keyClick(box, Qt::Key_Space);
}

void tst_GroupPropertyEditor::boxMayDieLaterWhenToggled()
{
    Begin group;
    const QPointer<QCheckBox> box = group.build();
    connect(group.editor.get(), &PropertyEditor::valueChanged, this,
            [&group] { group.deleteLater(); });

    QTest::keyClick(box.data(), Qt::Key_Space);

    QTRY_VERIFY(!box);
}

QTEST_MAIN(tst_GroupPropertyEditor)
#include "tst_GroupPropertyEditor.moc"
