#include "Subject.h"

namespace {

constexpr QSize kWindowSize(420, 800);

} // namespace

Subject::Subject()
{
    m_window.setWidgetResizable(true);
    m_window.resize(kWindowSize);
}
