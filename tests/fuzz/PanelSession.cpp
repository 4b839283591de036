#include "fuzz/PanelSession.h"

#include "fuzz/CheckedPanel.h"
#include "fuzz/Desktop.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/HostEditors.h"
#include "fuzz/HostileProperty.h"

#include <property/PropertyUI.h>
#include <property/editors/ColorPropertyEditor.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QApplication>
#include <QDialog>
#include <QScrollArea>
#include <QTimer>

namespace Fuzz {

using namespace Tessark::PropertyUI;

namespace {

constexpr std::size_t kBytesOfProperty = 24;
constexpr int kMostProperties = 16;
constexpr int kDeepestCallback = 3;

/// Counts what it is in, for as long as it lives.
class Scope
{
public:
    explicit Scope(int &depth)
        : m_depth(depth)
    {
        ++m_depth;
    }
    ~Scope() { --m_depth; }

    Scope(const Scope &) = delete;
    Scope &operator=(const Scope &) = delete;

private:
    int &m_depth;
};

/// True for editors whose value() is what setValue() shows again. A texture is reported only when it
/// was picked, a matrix comes out of rounded fields, and a format cannot be compared.
bool isRepeatable(const PropertyEditor &editor)
{
    static const QStringList s_others{kPropertyTypeTexture, kPropertyTypeTransform2D,
                                      kPropertyTypeImageFormat, kPropertyTypeImage};
    const QString &type = editor.editedProperty()->type;
    return libraryTypes().contains(type) && !s_others.contains(type);
}

/// The editors, which may go while they are called.
QVector<QPointer<PropertyEditor>> editorsOf(const CheckedPanel &panel)
{
    const QVector<PropertyEditor *> editors = panel.editors();
    return {editors.cbegin(), editors.cend()};
}

/// As a modal dialog that the user closes at once.
void openDialog()
{
    QDialog dialog;
    QTimer::singleShot(0, &dialog, &QDialog::reject);
    dialog.exec();
}

} // namespace

PanelSession::PanelSession(FuzzInput &input)
{
    resetRegistry();
    m_memory = static_cast<Memory>(input.below(3));
    const int count = input.below(kMostProperties) + 1;
    const bool hasNull = input.oneIn(8);
    const bool repeatsFirst = input.oneIn(8);
    for (int i = 0; i < count; ++i) {
        m_owned.push_back(anyProperty(input.take(kBytesOfProperty)));
        m_properties.append(m_owned.back().get());
    }
    if (hasNull)
        m_properties.insert(count / 2, nullptr);
    if (repeatsFirst)
        m_properties.append(m_properties.first());

    m_window = std::make_unique<QScrollArea>();
    m_window->setWidgetResizable(true);
    m_window->resize(400, 300);
    m_user = std::make_unique<User>(*m_window);
    rebuild();
    m_window->show();
    m_window->activateWindow();
    m_user->wait();
}

PanelSession::~PanelSession()
{
    m_user->wait();
    m_user.reset();
    m_window.reset();
    require(!m_panel, "a panel goes with its window");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    resetDesktop();
}

void PanelSession::act(FuzzInput input)
{
    m_script = &input;
    switch (input.below(8)) {
    case 0:
        actAsHost(input);
        break;
    case 1:
        changeDesktop(*m_window, input);
        break;
    case 2:
        m_user->wait();
        break;
    default:
        m_user->act(input);
    }
    m_script = nullptr;
    if (!m_panel)
        rebuild();
}

void PanelSession::setValue(Property *property, const QVariant &value, ChangeFlags)
{
    require(m_panel || m_building, "a panel that is gone tells nothing");
    require(!m_updatingProperty, "updateProperty() tells the host nothing");
    require(m_showing == 0 || m_building, "showing a value tells the host nothing");
    if (m_memory != Memory::Forgets)
        m_values[property] = value;
    actInCallback();
}

QVariant PanelSession::value(Property *property)
{
    require(m_showing > 0, "values are read to be shown");
    actInCallback();
    if (m_memory == Memory::Lies && m_script)
        return anyVariant(*m_script);
    return m_values.value(property);
}

void PanelSession::rebuild()
{
    delete m_panel;
    m_building = true;
    m_panel = new CheckedPanel(m_properties, this);
    m_building = false;
    m_window->setWidget(m_panel);
    m_panel->show();
    refresh();
}

void PanelSession::actAsHost(FuzzInput &input)
{
    switch (input.below(9)) {
    case 0:
        refresh();
        break;
    case 1:
        describe(input);
        break;
    case 2:
    case 3:
        showInEditor(input);
        break;
    case 4:
        showAgain(input);
        break;
    case 5:
        revert(input);
        break;
    case 6:
        resetRegistry();
        rebuild();
        break;
    case 7:
        furnishEditors(input);
        break;
    default:
        changePanel(input);
    }
}

/// What a host does in a callback of the panel. It deletes the panel later only: Qt itself does not let
/// every control go while it handles an event.
void PanelSession::actInCallback()
{
    if (!m_script || !m_panel || m_building || m_callbacks >= kDeepestCallback)
        return;
    const Scope inCallback(m_callbacks);
    switch (m_script->below(12)) {
    case 7:
        if (m_showing == 0)
            openDialog();
        break;
    case 8:
        refresh();
        break;
    case 9:
        describe(*m_script);
        break;
    case 10:
        // A field that loses the focus announces what was typed, which is no part of showing.
        if (m_showing == 0)
            changePanel(*m_script);
        break;
    case 11:
        m_panel->deleteLater();
        break;
    default:
        break;
    }
}

void PanelSession::refresh()
{
    const Scope showing(m_showing);
    m_panel->updateUI();
}

void PanelSession::describe(FuzzInput &input)
{
    const auto &property = input.pickFrom(m_owned);
    changeProperty(*property, input);
    m_updatingProperty = true;
    m_panel->updateProperty(property.get());
    m_updatingProperty = false;
}

void PanelSession::showInEditor(FuzzInput &input)
{
    PropertyEditor *const editor = anyEditor(input);
    if (!editor)
        return;
    const Scope showing(m_showing);
    if (input.oneIn(4))
        editor->setValues({anyVariant(input), anyVariant(input)});
    else
        editor->setValue(anyVariant(input));
}

void PanelSession::showAgain(FuzzInput &input)
{
    PropertyEditor *const editor = anyEditor(input);
    if (!editor || !isRepeatable(*editor))
        return;
    const Scope showing(m_showing);
    const QVariant shown = editor->value();
    editor->setValue(shown);
    const QVariant again = editor->value();
    if (shown == shown && again != shown) // not so where it holds a NaN
        fail(QStringLiteral("an editor of %1 shows %2 as %3")
                 .arg(editor->editedProperty()->type, shown.toString(), again.toString()));
}

void PanelSession::revert(FuzzInput &input)
{
    if (PropertyEditor *const editor = anyEditor(input))
        editor->revertToDefaultValue();
}

/// What hosts say to editors of a certain class alone.
void PanelSession::furnishEditors(FuzzInput &input)
{
    const bool isOn = input.flip();
    for (const QPointer<PropertyEditor> &editor : editorsOf(*m_panel)) {
        if (auto *const color = qobject_cast<ColorPropertyEditor *>(editor.data()))
            color->setInputColorAsInteger(isOn);
        auto *const texture = qobject_cast<TexturePropertyEditor *>(editor.data());
        if (!texture)
            continue;
        texture->setAcceptUrlsDrops(isOn);
        QVector<TextureChoice> choices(input.below(4));
        for (TextureChoice &choice : choices)
            choice.name = input.text();
        texture->setTextures(choices);
    }
}

void PanelSession::changePanel(FuzzInput &input)
{
    switch (input.below(4)) {
    case 0:
        m_panel->setEnabled(!m_panel->isEnabled());
        break;
    case 1:
        m_panel->setVisible(!m_panel->isVisible());
        break;
    case 2:
        m_panel->resize(QSize{input.byte() * 4, input.byte() * 4});
        break;
    default:
        m_panel->deleteLater();
    }
}

PropertyEditor *PanelSession::anyEditor(FuzzInput &input) const
{
    const QVector<PropertyEditor *> editors = m_panel->editors();
    return editors.isEmpty() ? nullptr : input.pickFrom(editors);
}

} // namespace Fuzz
