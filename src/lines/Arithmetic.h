#pragma once

namespace satwecvt {

/// Whether a character joins two numbers in a token such as 2*150.
constexpr bool IsOperator(char c) noexcept
{
    return c == '+' || c == '-' || c == '*' || c == '/';
}

/// The value of two numbers joined by an operator.
constexpr double Apply(char operation, double value, double operand) noexcept
{
    switch (operation) {
    case '+':
        return value + operand;
    case '-':
        return value - operand;
    case '*':
        return value * operand;
    default:
        return value / operand;
    }
}

}  // namespace satwecvt
