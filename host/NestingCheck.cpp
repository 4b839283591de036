#include "host/NestingCheck_p.h"

#include "host/Messages_p.h"
#include "host/ProblemCollector_p.h"
#include "host/Suggestion_p.h"

#include <property/PropertyVocabulary.h>

namespace Tessark::PropertyHost {

using namespace PropertyUI;

namespace {

/// Each level of tabs nests widgets, and a toolkit walks them recursively.
constexpr std::size_t kMaximumDepth = 64;

QString typePointer(const QString &rowPointer)
{
    return childPointer(rowPointer, QStringLiteral("type"));
}

} // namespace

NestingCheck::NestingCheck(ProblemCollector &problems)
    : m_problems(problems)
{
}

void NestingCheck::addRow(const QString &type, const QString &pointer)
{
    if (type == kPropertyTypeBeginGroup)
        open(Kind::Group, pointer);
    else if (type == kPropertyTypeEndGroup)
        close(Kind::Group, type, pointer);
    else if (type == kPropertyTypeBeginTabGroup)
        open(Kind::TabGroup, pointer);
    else if (type == kPropertyTypeEndTabGroup)
        close(Kind::TabGroup, type, pointer);
    else if (type == kPropertyTypeTab)
        checkTab(pointer);
}

void NestingCheck::finish()
{
    for (const Opening &opening : m_open) {
        const bool isGroup = opening.kind == Kind::Group;
        m_problems.error(typePointer(opening.pointer),
                         isGroup ? Messages::tr("this group is never closed, %1 is missing")
                                       .arg(quoted(kPropertyTypeEndGroup))
                                 : Messages::tr("this tab group is never closed, %1 is missing")
                                       .arg(quoted(kPropertyTypeEndTabGroup)));
    }
    m_open.clear();
}

void NestingCheck::open(Kind kind, const QString &pointer)
{
    m_open.push_back({kind, pointer});
    ++count(kind);
    if (m_open.size() == kMaximumDepth + 1) {
        m_problems.error(typePointer(pointer),
                         Messages::tr("groups and tab groups may be nested %n deep at most",
                                      nullptr, static_cast<int>(kMaximumDepth)));
    }
}

/// Closes the innermost opening of the kind and, after telling, those inside it. Nothing closes
/// when there is none, which the counts know without a search.
void NestingCheck::close(Kind kind, const QString &type, const QString &pointer)
{
    if (count(kind) == 0) {
        m_problems.error(typePointer(pointer),
                         Messages::tr("nothing is open that %1 could close").arg(quoted(type)));
        return;
    }
    if (m_open.back().kind != kind) {
        m_problems.error(
            typePointer(pointer),
            Messages::tr("%1 here leaves %2 open").arg(quoted(type), m_open.back().pointer));
    }
    while (m_open.back().kind != kind) {
        --count(m_open.back().kind);
        m_open.pop_back();
    }
    --count(kind);
    m_open.pop_back();
}

void NestingCheck::checkTab(const QString &pointer)
{
    if (count(Kind::TabGroup) == 0) {
        m_problems.error(typePointer(pointer), Messages::tr("a tab outside of a tab group"));
    } else if (m_open.back().kind == Kind::Group) {
        m_problems.error(typePointer(pointer),
                         Messages::tr("a tab inside of the group %1").arg(m_open.back().pointer));
    }
}

int &NestingCheck::count(Kind kind)
{
    return kind == Kind::Group ? m_groups : m_tabGroups;
}

} // namespace Tessark::PropertyHost
