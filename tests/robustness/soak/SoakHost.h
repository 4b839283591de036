#pragma once

#include "SoakRows.h"

#include <property/PropertyUI.h>

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVector>

class QLineEdit;
class QListWidget;

namespace Tessark::UI {
class DisclosureButton;
}

namespace Soak {

/// What the table of interactive runs says: which flags a change is to carry.
class RunTable
{
public:
    void started(const Tessark::PropertyUI::PropertyEditor *editor);
    void ended();
    bool continues(const Tessark::PropertyUI::PropertyEditor *editor) const;
    void changed(const Tessark::PropertyUI::PropertyEditor *editor);

private:
    const Tessark::PropertyUI::PropertyEditor *m_editor = nullptr;
    bool m_changeSeen = false;
};

/**
 * A host that stores what the panel tells it and, at once, later or never, refreshes the panel
 * with it; and that knows what each editor has to show at any time.
 */
class SoakHost : public QObject, public Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    SoakHost(const Rows &rows, Random &random);

    /// The panel whose editors are watched from now on.
    void watch(Tessark::PropertyUI::PropertyEditorPanel *panel);

    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(Tessark::PropertyUI::Property *property) override;

    /// Before and after the panel passes a change on, be it to a delegate or, while it updates a
    /// property, to nobody.
    void aboutToChange(const Tessark::PropertyUI::Property *property, ChangeFlags flags);
    void changed(const Tessark::PropertyUI::Property *property);

    // What a host does between the events of the user.
    void refresh();
    void setSomeValue();
    void describeSomethingAnew();
    void reset();

    /// Compares editors, store and runs. The runs can be told only while no popup is open.
    void check(bool runsToo);

    QVector<Tessark::PropertyUI::PropertyEditor *> editors() const;
    QStringList faults() const { return m_faults; }
    void addFault(const QString &text) { m_faults.append(text); }
    qint64 checks() const { return m_checks; }
    qint64 changes() const { return m_changes; }
    qint64 continuedChanges() const { return m_continuedChanges; }

private:
    struct Item
    {
        const Row *row = nullptr;
        Tessark::PropertyUI::PropertyEditor *editor = nullptr;
        QVariant stored;
        QVariant shown;
        bool isRunOpen = false;
        int sources = 0; // when the run was checked last
        bool isWheelDragged = false;
        QVector<QWidget *> runControls; // those that open a run while focused or pressed
        QLineEdit *lineEdit = nullptr;  // of a text that is announced when it is finished
        QListWidget *list = nullptr;    // of textures
        Tessark::UI::DisclosureButton *scaleToggle = nullptr; // of a transform, if it has one
        bool isUnfolded = false;                              // as its toggle was last seen
    };

    Item &itemOf(const Tessark::PropertyUI::Property *property);
    void connectTo(Item &item);
    void watchRunControls(Item &item);
    void watchUniformToggle(Item &item);
    void watchScaleToggle(Item &item);
    void scaleUnfolded(Item &item);
    void lookAtToggles();
    static bool folds(const Item &item);
    bool keepsTyping(const Item &item) const;
    bool isPending(const Item &item) const;
    void checkValue(const Item &item);
    void checkRun(Item &item);
    QVariant shownBy(const Item &item) const;
    int openSourcesOf(const Item &item) const;
    void expect(bool condition, const Item &item, const QString &text);

    const Rows &m_rows;
    Random &m_random;
    RunTable m_runs;
    QVector<Item> m_items;
    QHash<const Tessark::PropertyUI::Property *, int> m_indexes;
    Tessark::PropertyUI::PropertyEditorPanel *m_panel = nullptr;
    QStringList m_faults;
    int m_refreshes = 0;                                         // that run now
    const Tessark::PropertyUI::Property *m_announcing = nullptr; // unless by folding
    qint64 m_checks = 0;
    qint64 m_changes = 0;
    qint64 m_continuedChanges = 0;
};

/// A panel that lets the host see every change with its flags.
class SoakPanel : public Tessark::PropertyUI::PropertyEditorPanel
{
public:
    explicit SoakPanel(const Rows &rows, SoakHost *host);

    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  Tessark::PropertyUI::IPropertyEditorDelegate::ChangeFlags flags) override;

private:
    SoakHost *m_host;
};

} // namespace Soak
