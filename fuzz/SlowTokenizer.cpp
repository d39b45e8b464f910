#include "SlowTokenizer.h"

#include <cstddef>
#include <cstdlib>

namespace satwecvt {

namespace {

char Upper(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

bool IsWhiteSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

bool IsOperator(char character)
{
    return character == '+' || character == '-' || character == '*' || character == '/';
}

/// The last blank at or before the first "=", but not at index 0, and all behind it make way for a terminating
/// character that stands where the newline stood; the blank stays.
std::string WithoutAssignmentTail(const std::string& text)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        return text;
    }
    for (std::size_t at = equals; at >= 1; --at) {
        if (text[at] == ' ') {
            return text.substr(0, at + 1) + '\0';
        }
    }
    return text;
}

std::string WithoutBlanks(const std::string& text)
{
    std::string rest;
    for (const char character : text) {
        if (character != ' ') {
            rest += character;
        }
    }
    return rest;
}

std::vector<std::string> TokensBetweenBlanks(const std::string& text)
{
    std::vector<std::string> tokens;
    std::string token;
    for (const char character : text) {
        if (character != ' ') {
            token += character;
        } else if (!token.empty()) {
            tokens.push_back(token);
            token.clear();
        }
    }
    return tokens;  // what no blank closed is none
}

std::vector<std::string> TokensBetweenCommas(const std::string& text)
{
    std::vector<std::string> tokens;
    std::string token;
    for (const char character : WithoutBlanks(text)) {
        if (character != ',') {
            token += character;
        } else {
            tokens.push_back(token);
            token.clear();
        }
    }
    const bool isLineEnd = token.size() == 1 && (token[0] == '\0' || token[0] == '\n');
    if (!token.empty() && !isLineEnd) {
        tokens.push_back(token);
    }
    return tokens;
}

double Prefix(const std::string& text)
{
    return std::strtod(text.c_str(), nullptr);
}

double Apply(char operation, double value, double operand)
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

}  // namespace

bool SlowCheckLine(std::string& line)
{
    for (char& character : line) {
        character = Upper(character);
    }
    return !line.starts_with('C') && !SlowTokens(line).empty();
}

std::vector<std::string> SlowTokens(std::string text)
{
    text = WithoutAssignmentTail(text);
    if (text.empty()) {
        return {};
    }
    text.insert(text.size() - 1, 1, ' ');
    for (char& character : text) {
        if (character == '\t') {
            character = ' ';
        }
    }
    const bool hasComma = text.find(',') != std::string::npos;
    return hasComma ? TokensBetweenCommas(text) : TokensBetweenBlanks(text);
}

double SlowEvaluate(std::string token)
{
    for (char& character : token) {
        character = Upper(character);
    }
    while (!token.empty() && IsWhiteSpace(token.back())) {
        token.pop_back();
    }
    std::vector<std::size_t> operators;
    for (std::size_t i = 1; i + 1 < token.size(); ++i) {
        if (IsOperator(token[i]) && token[i - 1] != 'E' && token[i - 1] != ' ') {
            operators.push_back(i);
        }
    }
    if (operators.empty()) {
        return Prefix(token);
    }
    double value = Prefix(token.substr(0, operators[0]));
    for (std::size_t i = 0; i < operators.size(); ++i) {
        const std::size_t begin = operators[i] + 1;
        const std::size_t end = i + 1 < operators.size() ? operators[i + 1] : token.size();
        value = Apply(token[operators[i]], value, Prefix(token.substr(begin, end - begin)));
    }
    return value;
}

std::vector<double> SlowNumbers(const std::string& text)
{
    std::vector<double> numbers;
    for (const std::string& token : SlowTokens(text)) {
        numbers.push_back(SlowEvaluate(token));
    }
    return numbers;
}

std::vector<std::string> SlowLines(const std::string& text)
{
    std::vector<std::string> lines;
    std::string line;
    bool isOver = false;
    for (const char character : text) {
        isOver = isOver || character == '\0';
        if (!isOver) {
            line += character;
        }
        if (character == '\n') {
            lines.push_back(line);
            line.clear();
            isOver = false;
        }
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

}  // namespace satwecvt
