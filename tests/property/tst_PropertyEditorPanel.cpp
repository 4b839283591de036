#include <property/PropertyUI.h>

#include <QLineEdit>
#include <QTest>

using namespace Tessark::PropertyUI;

namespace {

class RecordingDelegate : public IPropertyEditorDelegate
{
public:
    void setValue(Property *property, const QVariant &value, ChangeFlags) override
    {
        values[property->name] = value;
    }

    QVariant value(Property *property) override { return values.value(property->name); }

    QMap<QString, QVariant> values;
};

} // namespace

class tst_PropertyEditorPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedTextReachesDelegate();
};

void tst_PropertyEditorPanel::typedTextReachesDelegate()
{
    Property property(QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString);
    RecordingDelegate delegate;
    PropertyEditorPanel panel({&property}, &delegate, nullptr);
    auto *const field = panel.findChild<QLineEdit *>();

    QTest::keyClicks(field, QStringLiteral("abc"));
    QTest::keyClick(field, Qt::Key_Return);

    QCOMPARE(delegate.values.value(QStringLiteral("title")), QVariant(QStringLiteral("abc")));
}

QTEST_MAIN(tst_PropertyEditorPanel)
#include "tst_PropertyEditorPanel.moc"
