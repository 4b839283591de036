#include "host/NumberExpression.h"

#include "host/NumberParser_p.h"

namespace Tessark::PropertyHost {

NumberExpression::NumberExpression(const QString &text, const NumberScope &scope)
{
    NumberParser parser(text, scope);
    m_operation = parser.takeOperation();
    m_operand = parser.operandOf(parser.parse(), m_operation);
    m_value = parser.applied(m_operation, m_operand);
    m_errorText = parser.errorText();
    m_errorPosition = parser.errorPosition();
    m_isUnfinished = parser.isUnfinished();
    if (!isValid())
        m_value = m_operand = 0.0;
}

} // namespace Tessark::PropertyHost
