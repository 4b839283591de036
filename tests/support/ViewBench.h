#pragma once

#include "support/Events.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <QUndoStack>

#include <memory>

namespace TestSupport {

/// A view of a list, whose values a store keeps, with undo.
class ViewBench
{
public:
    using Property = Tessark::PropertyUI::Property;
    using PropertyEditor = Tessark::PropertyUI::PropertyEditor;

    /// The list as it is by now, with its defaults. The host may have given the view another delegate.
    void show()
    {
        store.reset(list);
        if (!view->panel())
            view->setProperties(list, &undo);
        undo.attach(view->panel());
        view->resize(420, 500);
        view->show();
        QVERIFY(QTest::qWaitForWindowActive(view.get()));
        settleEvents();
    }

    static Property *propertyIn(const Tessark::PropertyHost::PropertyList &rows,
                                const QString &name)
    {
        const auto properties = rows.properties();
        for (Property *property : properties) {
            if (property->name == name || (property->name.isEmpty() && property->label == name))
                return property;
        }
        return nullptr;
    }

    Property *property(const char *name) const { return propertyIn(list, QString::fromUtf8(name)); }

    PropertyEditor *editor(const char *name) const
    {
        const QString text = QString::fromUtf8(name);
        QVector<PropertyEditor *> editors;
        view->panel()->getEditors(editors, QString());
        for (PropertyEditor *editor : std::as_const(editors)) {
            const Property *const edited = editor->editedProperty();
            if (edited->name == text || (edited->name.isEmpty() && edited->label == text))
                return editor;
        }
        return nullptr;
    }

    QWidget *field(const char *name) const { return editor(name)->widget(nullptr); }

    template <typename Control>
    Control *control(const char *name, int index = 0) const
    {
        auto *const whole = qobject_cast<Control *>(field(name));
        return whole ? whole : field(name)->template findChildren<Control *>().value(index);
    }

    QLabel *label(const char *name) const
    {
        const QString text = editor(name)->editedProperty()->label + QLatin1Char(':');
        const auto labels = view->panel()->findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == text)
                return label;
        }
        return nullptr;
    }

    /// The mark of a row that was changed once, or null.
    QAbstractButton *mark(const char *name) const
    {
        const QString said =
            QStringLiteral("Set %1 to Default").arg(editor(name)->editedProperty()->label);
        const auto buttons = view->panel()->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->accessibleName() == said)
                return button;
        }
        return nullptr;
    }

    bool isMarked(const char *name) const
    {
        const QAbstractButton *const button = mark(name);
        return button && !button->isHidden();
    }

    QVariant value(const char *name) { return store.value(property(name)); }

    /// By the host, who does not tell anyone.
    void hold(const char *name, const QVariant &value)
    {
        store.setValue(property(name), value, Tessark::PropertyHost::PropertyStore::NewChange);
    }

    Tessark::PropertyHost::PropertyList list;
    Tessark::PropertyHost::PropertyStore store;
    QUndoStack stack;
    Tessark::PropertyHost::UndoDelegate undo{&store, &stack};
    std::unique_ptr<Tessark::PropertyHost::PropertyPanelView> view =
        std::make_unique<Tessark::PropertyHost::PropertyPanelView>();
};

} // namespace TestSupport
