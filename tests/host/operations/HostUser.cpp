#include "HostUser.h"

#include "robustness/Hand.h"
#include "support/SliderDrag.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;
using TestSupport::below;
using TestSupport::happens;

namespace Operations {

namespace {

constexpr int kQuarters = 4; // numbers that no field rounds

const QString kGroup = QStringLiteral("Sound");

/// A check box reacts at its left only.
void click(QCheckBox *box)
{
    Hand::click(box, QPoint(8, box->height() / 2));
}

} // namespace

HostUser::HostUser(HostScene &scene, TestSupport::Random &random)
    : m_scene(scene)
    , m_random(random)
{
}

QString HostUser::type()
{
    const QString row = anyRow({kGain, kLimit, kCount, kPlace});
    if (row.isEmpty())
        return {};
    const auto fields = m_scene.editor(row)->widget(nullptr)->findChildren<QAbstractSpinBox *>();
    const int part = below(m_random, int(fields.size()));
    const double number = anyNumber(row);
    if (row == kPlace) {
        QBitArray parts(2);
        parts.setBit(part);
        m_scene.expectParts(parts);
    }
    const bool confirms = happens(m_random, 50);
    typeInto(fields.at(part), QString::number(number), confirms);
    m_scene.expectParts({});
    const QVariant shown = m_scene.model().shown(row);
    if (row == kPlace)
        expectTold(row, shown); // the other part may differ between the objects
    else
        expectTold(row, row == kCount ? QVariant(int(number)) : QVariant(number));
    return QStringLiteral("type %1 into %2 %3").arg(number).arg(row).arg(part);
}

QString HostUser::drag()
{
    const QString row = anyRow({kGain, kLimit, kCount});
    if (row.isEmpty())
        return {};
    SliderDrag drag(controlOf<QSlider>(row));
    drag.press();
    const int moves = 1 + below(m_random, 4);
    QStringList words;
    for (int i = 0; i < moves; ++i) {
        const int pixels = below(m_random, 41) - 20;
        drag.moveBy(pixels);
        words.append(QString::number(pixels));
        if (happens(m_random, 25))
            disturb();
    }
    drag.release();
    return QStringLiteral("drag %1 by %2").arg(row, words.join(QLatin1Char(' ')));
}

QString HostUser::check()
{
    if (anyRow({kOn}).isEmpty())
        return {};
    const bool on = m_scene.model().isPending(kOn) || !m_scene.model().isMixed(kOn)
                        ? !m_scene.model().shown(kOn).toBool()
                        : true;
    click(controlOf<QCheckBox>(kOn));
    expectTold(kOn, on);
    return QStringLiteral("check on");
}

QString HostUser::checkAndLosePanel()
{
    if (anyRow({kOn}).isEmpty())
        return {};
    m_scene.deleteViewInNextEdit();
    click(controlOf<QCheckBox>(kOn));
    if (m_scene.view())
        m_fault = QStringLiteral("a click on the box told nothing");
    m_scene.renewView();
    return QStringLiteral("check on, and the panel goes");
}

QString HostUser::choose()
{
    if (anyRow({kMode}).isEmpty())
        return {};
    auto *const box = controlOf<QComboBox>(kMode);
    const int next = box->currentIndex() + 1;
    if (next >= kModes)
        return {};
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    box->clearFocus();
    expectTold(kMode, next);
    return QStringLiteral("choose mode %1").arg(next);
}

QString HostUser::enterText()
{
    if (anyRow({kTitle}).isEmpty())
        return {};
    const QStringList words = {QStringLiteral("a"), QStringLiteral("song"), QStringLiteral("new"),
                               QString()};
    QString word = words.at(below(m_random, int(words.size())));
    if (word.isEmpty() && m_scene.model().isMixed(kTitle))
        word = QStringLiteral("b"); // an empty field that stays empty was not touched
    typeInto(controlOf<QLineEdit>(kTitle), word, happens(m_random, 50));
    expectTold(kTitle, word);
    return QStringLiteral("enter \"%1\"").arg(word);
}

QString HostUser::passThroughText()
{
    if (anyRow({kTitle}).isEmpty())
        return {};
    auto *const line = controlOf<QLineEdit>(kTitle);
    m_scene.expectPassing(true);
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    line->clearFocus();
    m_scene.expectPassing(false);
    return QStringLiteral("go through title");
}

QString HostUser::pickDefault()
{
    const QString row = anyRow({kGain, kLimit, kCount, kOn, kTitle, kMode, kPlace});
    if (row.isEmpty() || !m_scene.model().hasDefault(row))
        return {};
    m_scene.expectDefault(row);
    Hand::pickFromMenu(m_scene.view()->panel(),
                       m_scene.editor(row)->widget(nullptr)->geometry().center());
    m_scene.expectDefault({});
    if (!m_scene.takeTold(row).isValid())
        m_fault = QStringLiteral("the menu told nothing");
    return QStringLiteral("set %1 to default").arg(row);
}

QString HostUser::fold()
{
    if (!m_scene.editor(kGroup))
        return {};
    const bool open = !m_scene.model().isGroupOpen();
    click(qobject_cast<QCheckBox *>(m_scene.editor(kGroup)->widget(nullptr)));
    expectTold(kGroup, open);
    return open ? QStringLiteral("open the group") : QStringLiteral("fold the group");
}

QString HostUser::trigger()
{
    if (!m_scene.editor(kReset) || !m_scene.model().isCommon(kReset))
        return {};
    QWidget *const widget = m_scene.editor(kReset)->widget(nullptr);
    auto *const button = qobject_cast<QAbstractButton *>(widget);
    Hand::click(button ? button : widget->findChild<QAbstractButton *>());
    return QStringLiteral("trigger");
}

/// One that is in sight, or none.
QString HostUser::anyRow(const QStringList &rows)
{
    QStringList candidates;
    for (const QString &row : m_scene.rowsInSight()) {
        if (rows.contains(row))
            candidates.append(row);
    }
    return candidates.isEmpty() ? QString()
                                : candidates.at(below(m_random, int(candidates.size())));
}

template <typename Control>
Control *HostUser::controlOf(const QString &row) const
{
    QWidget *const widget = m_scene.editor(row)->widget(nullptr);
    auto *const control = qobject_cast<Control *>(widget);
    return control ? control : widget->findChild<Control *>();
}

/// One that the field takes.
double HostUser::anyNumber(const QString &row)
{
    if (row == kCount)
        return below(m_random, kHighestCount + 1);
    if (row == kLimit)
        return 1 + below(m_random, (kHighestLimit - 1) * kQuarters + 1) / double(kQuarters);
    if (row == kGain) {
        const int quarters = int(m_scene.model().highestGain() * kQuarters);
        return below(m_random, quarters + 1) / double(kQuarters);
    }
    return below(m_random, 801) / double(kQuarters) - 100;
}

/// In place of what the field holds.
void HostUser::typeInto(QWidget *field, const QString &text, bool confirms)
{
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
    // A line of text tells nothing before it is finished, and a refresh takes it back.
    if (!qobject_cast<QLineEdit *>(field) && happens(m_random, 20))
        disturb();
    if (confirms)
        QTest::keyClick(field, Qt::Key_Return);
    field->clearFocus();
}

void HostUser::expectTold(const QString &row, const QVariant &value)
{
    const QVariant shown =
        row == kGroup ? QVariant(m_scene.model().isGroupOpen()) : m_scene.model().shown(row);
    if (shown != value)
        m_fault = QStringLiteral("the edit of %1 was not told as it was made").arg(row);
}

/// What a host may do while an edit is under way.
void HostUser::disturb()
{
    const QString fault = m_scene.difference();
    if (!fault.isEmpty())
        m_fault = QStringLiteral("meanwhile ") + fault;
    if (happens(m_random, 50))
        m_scene.refresh();
}

} // namespace Operations
