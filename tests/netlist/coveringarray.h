#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

/// Choices of option values that hold every possible pair of values of any two options, and more
/// of the same kind up to a number. The same input gives the same choices on any machine.
class CoveringArray {
public:
    struct Option {
        QString name;
        QStringList values;
    };
    using Choice = QList<int>; ///< an index into the values of each option
    /// Whether a choice can occur.
    using Rule = std::function<bool(const Choice&)>;

    CoveringArray(QList<Option> options, Rule rule, quint32 seed);

    /// At least `count` choices, no two alike.
    QList<Choice> choices(int count);
    /// Pairs that no choice can hold, found while the choices were made.
    int impossiblePairs() const { return m_impossible; }
    int possiblePairs() const { return m_possible; }
    /// Of the pairs that occur in any possible choice, those that these choices lack.
    int missingPairs(const QList<Choice>& choices) const;

private:
    struct Pair {
        int option1, value1, option2, value2;
    };
    int random(int below);
    /// A possible choice with this pair; empty when none was found.
    Choice drawWith(const Pair& pair);
    QList<Pair> allPairs() const;

    QList<Option> m_options;
    Rule m_rule;
    std::uint64_t m_state;
    int m_impossible = 0;
    int m_possible = 0;
    QList<Pair> m_found;
};
