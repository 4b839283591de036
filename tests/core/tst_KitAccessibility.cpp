#include "core/ColorWheel.h"
#include "core/LogSlider.h"
#include "core/Slider.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTest>

using namespace Tessark::UI;

namespace {

constexpr QAccessible::Role kHostRole = QAccessible::Dial;

QAccessibleInterface *hostInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String("HostWheel"))
        return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget *>(object), kHostRole);
}

QAccessible::Role roleOf(QWidget *widget)
{
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->role() : QAccessible::NoRole;
}

} // namespace

/// A host's wheel with an interface of its own.
class HostWheel : public ColorWheel
{
    Q_OBJECT
};

/// One without.
class PlainWheel : public ColorWheel
{
    Q_OBJECT
};

/// Which accessible interface the kit's widgets and their subclasses get.
class tst_KitAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void rolesOfTheKit();
    void subclassIsAsItsBase();
    void interfaceOfTheHostComesFirst();
};

/// Qt asks the latest factory first, so the host's is there before any widget of the kit.
void tst_KitAccessibility::initTestCase()
{
    QAccessible::installFactory(hostInterface);
}

void tst_KitAccessibility::rolesOfTheKit()
{
    ColorWheel wheel;
    Slider slider(Qt::Horizontal);
    LogSlider logSlider(Qt::Horizontal);

    QCOMPARE(roleOf(&wheel), QAccessible::ColorChooser);
    QCOMPARE(roleOf(&slider), QAccessible::Slider);
    QCOMPARE(roleOf(&logSlider), QAccessible::Slider);
}

void tst_KitAccessibility::subclassIsAsItsBase()
{
    PlainWheel wheel;

    QCOMPARE(roleOf(&wheel), QAccessible::ColorChooser);
}

void tst_KitAccessibility::interfaceOfTheHostComesFirst()
{
    HostWheel wheel;

    QCOMPARE(roleOf(&wheel), kHostRole);
}

QTEST_MAIN(tst_KitAccessibility)
#include "tst_KitAccessibility.moc"
