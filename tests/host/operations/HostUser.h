#pragma once

#include "HostScene.h"

#include "support/Random.h"

namespace Operations {

/// What a user does in the panel at random, by real events. Each gives what it was in words, and
/// nothing where there is no row for it.
class HostUser
{
public:
    HostUser(HostScene &scene, TestSupport::Random &random);

    QString type();
    QString drag();
    QString check();
    QString checkAndLosePanel();
    QString choose();
    QString enterText();
    QString passThroughText();
    QString pickDefault();
    QString fold();
    QString trigger();

    /// What was not as the user did it; empty where all was.
    QString takeFault() { return std::exchange(m_fault, QString()); }

private:
    QString anyRow(const QStringList &rows);
    template <typename Control>
    Control *controlOf(const QString &row) const;
    double anyNumber(const QString &row);
    void typeInto(QWidget *field, const QString &text, bool confirms);
    void expectTold(const QString &row, const QVariant &value);
    void disturb();

    HostScene &m_scene;
    TestSupport::Random &m_random;
    QString m_fault;
};

} // namespace Operations
