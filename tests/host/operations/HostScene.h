#pragma once

#include "EditedObject.h"
#include "HostModel.h"

#include <host/CommitPolicy.h>
#include <host/PropertyPanelView.h>
#include <host/SelectionDelegate.h>
#include <host/UndoDelegate.h>
#include <property/PropertyUI.h>

#include <QUndoStack>

#include <memory>
#include <vector>

namespace Operations {

/**
 * A host with all that the host side offers: objects of several kinds, edited together through a
 * SelectionDelegate or alone through an UndoDelegate, on one undo stack; a CommitPolicy and the rules
 * in front, a PropertyPanelView before them. The model is told of all that is done.
 */
class HostScene : private Tessark::PropertyUI::IPropertyEditorDelegate
{
public:
    HostScene();
    ~HostScene();
    Q_DISABLE_COPY(HostScene)

    HostModel &model() { return m_model; }
    int objectCount() const { return int(m_objects.size()); }

    Tessark::PropertyHost::PropertyPanelView *view() const { return m_view.get(); }
    Tessark::PropertyUI::PropertyEditor *editor(const QString &row) const;
    QStringList rowsInSight() const; // those that a user can edit

    // What a host does.
    void select(const QVector<int> &objects);
    void showSelection();
    void showObject(int object);
    void refresh();
    void renewView();
    void activateView();
    void renewPolicy();
    void renewSelectionDelegate();
    void renewUndoDelegate(int object);
    void renewObject(int object);
    void takeStackAway();
    void renewStack();
    void setMode(const QString &row, Tessark::PropertyHost::CommitMode mode);
    void setRules(int object, const QString &placeVisible, const QString &titleEnabled,
                  bool gainFollows);
    void setPartialRows(Tessark::PropertyHost::PartialRows rows);
    void hostSets(int object, const QString &row, const QVariant &value);
    bool assign(const QString &row, const QVariant &value);
    bool add(const QString &row, int operand);
    bool setToDefault(const QString &row);
    void paste(const QString &row, const QVariant &value);
    void undo(bool refreshes);
    void redo();
    void flush();

    // What the user is about to do, which the panel does not tell.
    void expectParts(const QBitArray &parts) { m_parts = parts; }
    void expectDefault(const QString &row) { m_defaultRow = row; }
    void expectPassing(bool isPassing) { m_isPassing = isPassing; }
    void deleteViewInNextEdit() { m_deletesView = true; }

    /// The last value that the panel told of a row since the last call.
    QVariant takeTold(const QString &row) { return m_told.take(row); }

    /// Where stores, panel and undo stack do not agree with the model; empty where they do.
    QString difference();

    /// What the panel shows, for reports.
    QString inWords() const;

private:
    void setValue(Tessark::PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(Tessark::PropertyUI::Property *property) override;

    Tessark::PropertyUI::Property *selectedRow(const QString &row) const;
    Tessark::PropertyUI::IPropertyEditorDelegate *inner() const;
    void makePolicy();
    void forgetRows();
    void show(const Tessark::PropertyHost::PropertyList &list);
    QVector<Tessark::PropertyHost::SelectionMember> members() const;
    void setMembers();
    void showAgain();
    void makeSelectionDelegate();
    void seePassing();
    QString valueDifference() const;
    QString stackDifference() const;
    QString panelDifference() const;
    QString rowDifference(const QString &row) const;
    QString ruleDifference(const QString &row) const;
    QString mixedDifference(const QString &row) const;

    std::vector<std::unique_ptr<EditedObject>> m_objects;
    HostModel m_model;
    std::unique_ptr<QUndoStack> m_stack;
    std::unique_ptr<Tessark::PropertyHost::SelectionDelegate> m_selection;
    std::vector<std::unique_ptr<Tessark::PropertyHost::UndoDelegate>> m_undo;
    std::unique_ptr<Tessark::PropertyHost::CommitPolicy> m_policy;
    std::unique_ptr<Tessark::PropertyHost::PropertyPanelView> m_view;
    QHash<QString, Tessark::PropertyHost::CommitMode> m_modes;
    QVector<Tessark::PropertyUI::Property *> m_rows; // of the panel
    bool m_isListNew = false;
    bool m_isRestoring = false;
    QBitArray m_parts;
    QString m_defaultRow;
    bool m_isPassing = false;
    bool m_deletesView = false;
    QHash<QString, QVariant> m_told;
    QString m_fault; // that was seen on the way
};

} // namespace Operations
