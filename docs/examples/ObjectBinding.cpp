#include <host/ObjectBinding.h>
#include <property/PropertyUI.h>

#include <QApplication>
#include <QTextStream>

using Tessark::PropertyHost::ObjectBinding;
using Tessark::PropertyUI::PropertyEditorPanel;

class Amplifier : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("gain.label", "Input gain")
    Q_CLASSINFO("gain.range", "0..10..100") // typed in values go up to 100
    Q_CLASSINFO("gain.suffix", " dB")
    Q_CLASSINFO("mode.group", "Advanced")
    Q_CLASSINFO("mode.widget", "radio_buttons")
    Q_PROPERTY(double gain READ gain WRITE setGain RESET resetGain NOTIFY gainChanged)
    Q_PROPERTY(bool muted MEMBER muted)
    Q_PROPERTY(Mode mode MEMBER mode)
    Q_PROPERTY(double peak READ peak CONSTANT)

public:
    enum Mode { Fast = 3, Exact = 7 };
    Q_ENUM(Mode)

    double gain() const { return m_gain; }
    double peak() const { return 0.8; }
    void setGain(double gain)
    {
        m_gain = gain;
        Q_EMIT gainChanged();
    }
    void resetGain() { setGain(1); }

    bool muted = false;
    Mode mode = Fast;

Q_SIGNALS:
    void gainChanged();

private:
    double m_gain = 1;
};

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QTextStream out(stdout);

    Amplifier amplifier;
    ObjectBinding binding;
    binding.add(&amplifier);
    for (const auto &problem : binding.validate()) // none: the class says nothing wrong
        out << problem.toString("Amplifier") << '\n';

    PropertyEditorPanel panel(binding.properties(), binding.delegate(), nullptr);
    binding.watch(&panel);
    panel.updateUI();
    panel.show();

    // What the object notifies is in the panel before the setter returns.
    QVector<Tessark::PropertyUI::PropertyEditor *> editors;
    panel.getEditors(editors, "float");
    amplifier.setGain(7.5);
    out << "shown: " << editors.at(0)->value().toDouble() << '\n';

    // What a user does in the panel arrives in the object; here the host does it.
    binding.delegate()->setValue(binding.find("mode"), int(Amplifier::Exact), {});
    out << "mode " << amplifier.mode << '\n';

    // What nothing notifies is shown by a refresh.
    amplifier.muted = true;
    binding.refresh();
    return 0; // app.exec() in a program that goes on
}

#include "ObjectBinding.moc"
