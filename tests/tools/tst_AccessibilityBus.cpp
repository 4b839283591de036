// What a screen reader gets of the program over a real accessibility bus, on an X server.

#include "support/SessionBus.h"
#include "support/XServer.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QHash>
#include <QProcess>
#include <QTest>

#include <utility>

/// An object on the bus.
struct BusObject
{
    QString service;
    QDBusObjectPath path;
};
Q_DECLARE_METATYPE(BusObject)

QDBusArgument &operator<<(QDBusArgument &argument, const BusObject &object)
{
    argument.beginStructure();
    argument << object.service << object.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, BusObject &object)
{
    argument.beginStructure();
    argument >> object.service >> object.path;
    argument.endStructure();
    return argument;
}

namespace {

constexpr int kTimeout = 30000; // milliseconds
constexpr int kFocusableBit = 11;
constexpr int kVisibleBit = 30;

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kValue = QStringLiteral("org.a11y.atspi.Value");

/// A control as it is on the bus.
struct Control
{
    BusObject object;
    QString name;
    QString description;
    QString role;
    bool isFocusable = false;
    bool isVisible = false;
};

} // namespace

class tst_AccessibilityBus : public QObject
{
    Q_OBJECT

public:
    explicit tst_AccessibilityBus(const QString &sessionAddress)
        : m_sessionAddress(sessionAddress)
    {
    }

public Q_SLOTS:
    void noteEvent(const QDBusMessage &message);

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void everyControlHasAName();
    void namesAreThoseOfTheRows_data();
    void namesAreThoseOfTheRows();
    void valuesAreThoseShown();
    void changesAreTold_data();
    void changesAreTold();

private:
    QVariant property(const BusObject &object, const QString &interface, const QString &name);
    QList<BusObject> childrenOf(const BusObject &object);
    Control read(const BusObject &object);
    void walk(const BusObject &object);
    Control find(const QString &name, const QString &role) const;

    const QString m_sessionAddress;
    QDBusConnection m_bus{QString()};
    QProcess m_program;
    QVector<Control> m_controls;
    QStringList m_changed; // paths of objects that told a new value
};

/// Turns assistive technology on for a program that runs already, as the desktop's switch does.
void tst_AccessibilityBus::initTestCase()
{
    qDBusRegisterMetaType<BusObject>();
    qDBusRegisterMetaType<QList<BusObject>>();
    QDBusConnection session =
        QDBusConnection::connectToBus(m_sessionAddress, QStringLiteral("session"));
    QVERIFY2(session.isConnected(), qPrintable(session.lastError().message()));

    QDBusInterface launcher(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                            QStringLiteral("org.a11y.Bus"), session);
    const QDBusReply<QString> address = launcher.call(QStringLiteral("GetAddress"));
    QVERIFY2(address.isValid(),
             qPrintable(QStringLiteral("No accessibility bus (Debian package at-spi2-core): ")
                        + address.error().message()));
    m_bus = QDBusConnection::connectToBus(address.value(), QStringLiteral("accessibility"));
    QVERIFY2(m_bus.isConnected(), qPrintable(m_bus.lastError().message()));

    // Programs tell only what somebody asked to hear.
    QDBusInterface registry(QStringLiteral("org.a11y.atspi.Registry"),
                            QStringLiteral("/org/a11y/atspi/registry"),
                            QStringLiteral("org.a11y.atspi.Registry"), m_bus);
    const QDBusReply<void> isListening = registry.call(
        QStringLiteral("RegisterEvent"), QStringLiteral("object:property-change:accessible-value"),
        QStringList(), QString());
    QVERIFY2(isListening.isValid(), qPrintable(isListening.error().message()));

    m_program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_program.start(QStringLiteral(PROPERTY_PANEL_PROGRAM), QStringList());
    QVERIFY(m_program.waitForStarted(kTimeout));

    QDBusInterface switches(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                            QStringLiteral("org.freedesktop.DBus.Properties"), session);
    const QDBusReply<void> isOn =
        switches.call(QStringLiteral("Set"), QStringLiteral("org.a11y.Status"),
                      QStringLiteral("IsEnabled"), QVariant::fromValue(QDBusVariant(true)));
    QVERIFY2(isOn.isValid(), qPrintable(isOn.error().message()));

    const BusObject desktop{QStringLiteral("org.a11y.atspi.Registry"),
                            QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))};
    QTRY_VERIFY_WITH_TIMEOUT(!childrenOf(desktop).isEmpty(), kTimeout);
    const BusObject application = childrenOf(desktop).first();
    QTRY_VERIFY_WITH_TIMEOUT(!childrenOf(application).isEmpty(), kTimeout);
    walk(application);
}

void tst_AccessibilityBus::cleanupTestCase()
{
    m_program.terminate();
    QVERIFY(m_program.waitForFinished(kTimeout));
}

QVariant tst_AccessibilityBus::property(const BusObject &object, const QString &interface,
                                        const QString &name)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        object.service, object.path.path(), QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << interface << name;
    const QDBusReply<QDBusVariant> answer = m_bus.call(question);
    return answer.value().variant();
}

QList<BusObject> tst_AccessibilityBus::childrenOf(const BusObject &object)
{
    const QDBusReply<QList<BusObject>> children = m_bus.call(QDBusMessage::createMethodCall(
        object.service, object.path.path(), kAccessible, QStringLiteral("GetChildren")));
    return children.value();
}

Control tst_AccessibilityBus::read(const BusObject &object)
{
    const auto ask = [this, &object](const char *method) {
        return m_bus.call(QDBusMessage::createMethodCall(object.service, object.path.path(),
                                                         kAccessible, QString::fromLatin1(method)));
    };
    Control control;
    control.object = object;
    control.name = property(object, kAccessible, QStringLiteral("Name")).toString();
    control.description = property(object, kAccessible, QStringLiteral("Description")).toString();
    control.role = QDBusReply<QString>(ask("GetRoleName")).value();
    const auto state = QDBusReply<QList<uint>>(ask("GetState")).value();
    const auto has = [&state](int bit) { return !state.isEmpty() && (state.first() >> bit & 1U); };
    control.isFocusable = has(kFocusableBit);
    control.isVisible = has(kVisibleBit);
    return control;
}

void tst_AccessibilityBus::walk(const BusObject &object)
{
    m_controls.append(read(object));
    for (const BusObject &child : childrenOf(object))
        walk(child);
}

Control tst_AccessibilityBus::find(const QString &name, const QString &role) const
{
    for (const Control &control : m_controls) {
        if (control.name == name && control.role == role)
            return control;
    }
    return {};
}

void tst_AccessibilityBus::everyControlHasAName()
{
    QStringList nameless;
    int focusable = 0;
    for (const Control &control : std::as_const(m_controls)) {
        focusable += control.isFocusable ? 1 : 0;
        const bool isUnused = control.role == QLatin1String("label") && !control.isVisible;
        if (!isUnused && control.isFocusable && control.name.isEmpty())
            nameless.append(control.role + QLatin1Char(' ') + control.object.path.path());
    }

    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
    QVERIFY2(focusable > 100, qPrintable(QString::number(focusable)));
}

void tst_AccessibilityBus::namesAreThoseOfTheRows_data()
{
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");

    QTest::newRow("number") << "spin box"
                            << "Threads"
                            << "1 to 64, Numbers";
    QTest::newRow("its slider") << "slider"
                                << "Threads, slider"
                                << "1 to 16, Numbers";
    QTest::newRow("number with a unit") << "spin box"
                                        << "Exposure"
                                        << "-2 to 2 EV, Numbers";
    QTest::newRow("component") << "spin box"
                               << "Offset, Y"
                               << "-1 to 1, Vectors";
    QTest::newRow("channel") << "slider"
                             << "Tint, Green, slider"
                             << "0 to 1, Colour";
    QTest::newRow("wheel") << "color chooser"
                           << "Tint, Color wheel"
                           << "Colour";
    QTest::newRow("choice") << "combo box"
                            << "Broadcast"
                            << "Codec, Choices";
    QTest::newRow("text") << "text"
                          << "Contact"
                          << "Groups, Slate, Client";
    QTest::newRow("check box") << "check box"
                               << "Show it"
                               << "Groups, Slate";
    QTest::newRow("browsing") << "push button"
                              << "Folder, Browse"
                              << "General";
}

void tst_AccessibilityBus::namesAreThoseOfTheRows()
{
    QFETCH(QString, role);
    QFETCH(QString, name);
    QFETCH(QString, description);

    const Control control = find(name, role);

    QVERIFY2(!control.name.isEmpty(), "no such control");
    QVERIFY(control.isFocusable);
    QCOMPARE(control.description, description);
}

void tst_AccessibilityBus::valuesAreThoseShown()
{
    const Control field = find(QStringLiteral("Exposure"), QStringLiteral("spin box"));
    const Control slider = find(QStringLiteral("Exposure, slider"), QStringLiteral("slider"));
    const QString current = QStringLiteral("CurrentValue");

    QCOMPARE(property(field.object, kValue, current).toDouble(), 0.35);
    QCOMPARE(property(slider.object, kValue, current).toDouble(), 0.35);
    QCOMPARE(property(slider.object, kValue, QStringLiteral("MinimumValue")).toDouble(), -2.0);
}

void tst_AccessibilityBus::noteEvent(const QDBusMessage &message)
{
    if (message.arguments().value(0).toString() == QLatin1String("accessible-value"))
        m_changed.append(message.path());
}

void tst_AccessibilityBus::changesAreTold_data()
{
    QTest::addColumn<QString>("moved"); // a slider
    QTest::addColumn<QString>("teller");
    QTest::addColumn<QString>("role");
    QTest::addColumn<double>("value");

    QTest::newRow("slider itself") << "Speed, slider"
                                   << "Speed, slider"
                                   << "slider" << 3.5;
    QTest::newRow("field of a slider") << "Speed, slider"
                                       << "Speed"
                                       << "spin box" << 2.5;
    QTest::newRow("logarithmic") << "Bit rate, slider"
                                 << "Bit rate, slider"
                                 << "slider" << 10.0;
    QTest::newRow("its field") << "Bit rate, slider"
                               << "Bit rate"
                               << "spin box" << 100.0;
    QTest::newRow("channel") << "Tint, Red, slider"
                             << "Tint, Red, slider"
                             << "slider" << 0.25;
}

void tst_AccessibilityBus::changesAreTold()
{
    QFETCH(QString, moved);
    QFETCH(QString, teller);
    QFETCH(QString, role);
    QFETCH(double, value);
    const Control slider = find(moved, QStringLiteral("slider"));
    const Control told = find(teller, role);
    QVERIFY(!slider.name.isEmpty() && !told.name.isEmpty());
    m_changed.clear();
    QVERIFY(m_bus.connect(told.object.service, told.object.path.path(),
                          QStringLiteral("org.a11y.atspi.Event.Object"),
                          QStringLiteral("PropertyChange"), this, SLOT(noteEvent(QDBusMessage))));

    QDBusMessage set = QDBusMessage::createMethodCall(
        slider.object.service, slider.object.path.path(),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
    set << kValue << QStringLiteral("CurrentValue") << QVariant::fromValue(QDBusVariant(value));
    m_bus.call(set);

    QTRY_VERIFY_WITH_TIMEOUT(m_changed.contains(told.object.path.path()), kTimeout);
    QVERIFY(m_bus.disconnect(
        told.object.service, told.object.path.path(), QStringLiteral("org.a11y.atspi.Event.Object"),
        QStringLiteral("PropertyChange"), this, SLOT(noteEvent(QDBusMessage))));
}

int main(int argc, char **argv)
{
    return runOnSessionBus([&](const SessionBus &session) {
        const QCoreApplication application(argc, argv);
        tst_AccessibilityBus test(session.address());
        return QTest::qExec(&test, argc, argv);
    });
}

#include "tst_AccessibilityBus.moc"
