#include <property/PropertyUI.h>

#include <QApplication>
#include <QDebug>

using namespace Tessark::PropertyUI;

class Store : public IPropertyEditorDelegate
{
public:
    void setValue(Property *property, const QVariant &value, ChangeFlags) override
    {
        m_values[property->name] = value;
        qInfo() << property->name << "=" << value;
    }

    QVariant value(Property *property) override
    {
        return m_values.value(property->name, property->defaultValue);
    }

private:
    QMap<QString, QVariant> m_values;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Property title(QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString);
    title.setDefaultValue(QStringLiteral("Untitled"));
    Property loop(QStringLiteral("loop"), QStringLiteral("Loop"), kPropertyTypeBoolean);
    loop.setDefaultValue(true).setHint(kPropertyHintBoolHideLabel, true);

    Store store;
    PropertyEditorPanel panel({&title, &loop}, &store, nullptr);
    panel.updateUI();
    panel.show();
    return QApplication::exec();
}
