#pragma once

#include <QCoreApplication>

namespace Tessark::PropertyPanel {

/// The program's texts outside of its window, in the user's language: Texts::tr().
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Tessark::PropertyPanel::Texts)
};

} // namespace Tessark::PropertyPanel
