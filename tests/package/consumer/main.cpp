// A host program without moc: types into the field of a panel and succeeds when its delegate was
// told exactly once, with the text typed.

#include <property/PropertyUI.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <cstdio>
#include <memory>

using namespace Tessark::PropertyUI;

namespace {

class Store final : public IPropertyEditorDelegate
{
public:
    void setValue(Property *property, const QVariant &value, ChangeFlags) override
    {
        ++changes;
        values[property->name] = value;
    }

    QVariant value(Property *property) override { return values.value(property->name); }

    QMap<QString, QVariant> values;
    int changes = 0;
};

void pressKey(QWidget *receiver, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(receiver, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(receiver, &release);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Property title(QStringLiteral("title"), QStringLiteral("Title"), kPropertyTypeString);
    Store store;
    PropertyEditorPanel panel({&title}, &store, nullptr);
    panel.show();

    auto *const field = panel.findChild<QLineEdit *>();
    if (!field) {
        std::fputs("the panel has no entry field\n", stderr);
        return 1;
    }
    pressKey(field, Qt::Key_O, QStringLiteral("o"));
    pressKey(field, Qt::Key_K, QStringLiteral("k"));
    pressKey(field, Qt::Key_Return, QStringLiteral("\r"));

    const QString stored = store.values.value(title.name).toString();
    std::printf("the delegate was told %d time(s) and holds \"%s\"\n", store.changes,
                qPrintable(stored));
    return store.changes == 1 && stored == QLatin1String("ok") ? 0 : 1;
}
