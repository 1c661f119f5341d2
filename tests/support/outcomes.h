// What tables of cases share: messages of exceptions, and texts that have one outcome.
#ifndef XTTML_TESTS_SUPPORT_OUTCOMES_H
#define XTTML_TESTS_SUPPORT_OUTCOMES_H

#include <string>
#include <typeinfo>
#include <vector>

/// The message() of the exception that `action` throws when it is of exactly the class `Thrown`.
template <class Thrown, class Action>
std::string ThrownMessage(Action&& action) {
    try {
        action();
    } catch (const Thrown& thrown) {
        return typeid(thrown) == typeid(Thrown) ? thrown.message() : "(a class derived from it)";
    } catch (...) {
        return "(another class)";
    }
    return "(nothing)";
}

/// The parts of a text between `separator`; an empty text has one empty part.
inline std::vector<std::string> Split(const std::string& text, char separator = '|') {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

#endif
