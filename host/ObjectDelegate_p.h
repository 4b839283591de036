#pragma once

#include "host/ClassInfo_p.h"
#include "host/ObjectRow_p.h"
#include "host/Problem.h"
#include "host/StructDelegate.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>
#include <vector>

namespace Tessark::PropertyHost {

struct ObjectBindingOptions;

/// The property list and delegate of an ObjectBinding, which lives on with the panels.
class ObjectDelegate : public StructDelegate
{
    Q_OBJECT

public:
    ObjectDelegate();
    ~ObjectDelegate() override;

    void addObject(QObject *object, const ObjectBindingOptions &options);
    void addGadget(void *gadget, const QMetaObject &meta, const ObjectBindingOptions &options);
    void forget(const void *objectOrGadget);
    void forgetAll();

    PropertyUI::Property *find(const QString &name) const { return m_rowNamed.value(name); }
    void watch(PropertyUI::PropertyEditorPanel *panel);
    QVector<Problem> validate() const;
    void refresh();

    void setValue(PropertyUI::Property *property, const QVariant &value,
                  ChangeFlags flags) override;
    QVariant value(PropertyUI::Property *property) override;

    /// Tells an edit by "Set to Default" from others: it comes while the panel has its menu.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A property that is to become a row.
    struct Plan
    {
        QMetaProperty property;
        SharedField field;
        QString group;
    };

    /// What is wrong with a class, and the row that it is about, if any.
    struct Finding
    {
        const PropertyUI::Property *row;
        ClassInfoMistake mistake;
    };

    /// An object or gadget and its rows.
    struct Source
    {
        const void *address;
        std::vector<QPointer<ObjectRow>> rows;
    };

    void add(const ObjectTarget &target, const QMetaObject &meta,
             const ObjectBindingOptions &options);
    std::vector<Plan> planRows(const QMetaObject &meta, const ClassInfo &info,
                               const ObjectBindingOptions &options);
    void appendRow(const ObjectTarget &target, const Plan &plan, const ClassInfo &info,
                   const ObjectBindingOptions &options);
    void describe(ObjectRow &row, const Plan &plan, const ClassInfo &info);
    void tell(const PropertyUI::Property *row, const ClassInfo &info,
              const QVector<ClassInfoMistake> &mistakes);
    static void release(const Source &source);

    ShownRow m_shown;
    std::vector<std::unique_ptr<ObjectRow>> m_rows;
    QHash<const PropertyUI::Property *, ObjectRow *> m_rowOf;
    QHash<QString, PropertyUI::Property *> m_rowNamed; // the first of each name
    std::vector<Source> m_sources;
    QVector<Finding> m_findings;
    QVector<QPointer<PropertyUI::PropertyEditorPanel>> m_panels;
    QPointer<PropertyUI::PropertyEditorPanel> m_menuPanel; // the one that has its menu open
};

} // namespace Tessark::PropertyHost
