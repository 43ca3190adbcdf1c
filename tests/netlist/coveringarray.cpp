#include "coveringarray.h"

#include <algorithm>

CoveringArray::CoveringArray(QList<Option> options, Rule rule, quint32 seed)
    : m_options(std::move(options))
    , m_rule(std::move(rule))
    , m_state(seed) {}

int CoveringArray::random(int below) {
    // A linear congruential step; its high bits are good enough to pick values.
    m_state = m_state * 6364136223846793005U + 1442695040888963407U;
    return static_cast<int>((m_state >> 33U) % static_cast<std::uint64_t>(below));
}

QList<CoveringArray::Pair> CoveringArray::allPairs() const {
    QList<Pair> pairs;
    for (int a = 0; a < m_options.size(); ++a) {
        for (int b = a + 1; b < m_options.size(); ++b) {
            for (int va = 0; va < m_options[a].values.size(); ++va) {
                for (int vb = 0; vb < m_options[b].values.size(); ++vb) {
                    pairs.append({a, va, b, vb});
                }
            }
        }
    }
    return pairs;
}

CoveringArray::Choice CoveringArray::drawWith(const Pair& pair) {
    for (int attempt = 0; attempt < 3000; ++attempt) {
        Choice choice;
        for (int i = 0; i < m_options.size(); ++i) {
            choice.append(i == pair.option1   ? pair.value1
                          : i == pair.option2 ? pair.value2
                                              : random(m_options[i].values.size()));
        }
        if (m_rule(choice)) {
            return choice;
        }
    }
    return {};
}

QList<CoveringArray::Choice> CoveringArray::choices(int count) {
    QList<Choice> result;
    QList<Pair> open = allPairs();
    const auto holds = [](const Choice& choice, const Pair& pair) {
        return choice[pair.option1] == pair.value1 && choice[pair.option2] == pair.value2;
    };
    const auto add = [&](const Choice& choice) {
        result.append(choice);
        const auto covered = [&](const Pair& pair) { return holds(choice, pair); };
        for (const Pair& pair : qAsConst(open)) {
            if (covered(pair)) {
                m_found.append(pair);
            }
        }
        open.erase(std::remove_if(open.begin(), open.end(), covered), open.end());
    };
    while (!open.isEmpty()) {
        // Of a few choices with the first open pair, the one that closes most.
        Choice best;
        int bestCount = 0;
        for (int i = 0; i < 8; ++i) {
            const Choice choice = drawWith(open.first());
            const auto closes = std::count_if(open.begin(), open.end(), [&](const Pair& pair) {
                return !choice.isEmpty() && holds(choice, pair);
            });
            if (closes > bestCount) {
                best = choice;
                bestCount = static_cast<int>(closes);
            }
            if (choice.isEmpty()) {
                break;
            }
        }
        if (best.isEmpty()) {
            ++m_impossible;
            open.removeFirst();
        } else {
            add(best);
        }
    }
    m_possible = m_found.size();
    while (result.size() < count) {
        const Choice more = drawWith(m_found[random(m_found.size())]);
        if (!more.isEmpty() && !result.contains(more)) {
            result.append(more);
        }
    }
    return result;
}

int CoveringArray::missingPairs(const QList<Choice>& choices) const {
    int missing = 0;
    for (const Pair& pair : m_found) {
        missing += std::none_of(choices.begin(), choices.end(), [&](const Choice& choice) {
            return choice[pair.option1] == pair.value1 && choice[pair.option2] == pair.value2;
        });
    }
    return missing;
}
