#pragma once

#include <QCoreApplication>

namespace Tessark::PropertyHost {

/// What is said about mistakes in lists, values and rules, in the user's language: Messages::tr().
struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(Tessark::PropertyHost::Messages)
};

} // namespace Tessark::PropertyHost
