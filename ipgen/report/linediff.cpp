#include "ipgen/report/linediff.h"

#include <algorithm>

namespace Ipgen {

namespace {

using Lines = QVector<DiffLine>;

/// Myers' greedy algorithm: for each number of edits d, the furthest point on each diagonal. The
/// frontiers are kept to walk the way back.
class EditPath {
public:
    EditPath(const QStringList& left, const QStringList& right)
        : m_left(left)
        , m_right(right)
        , m_offset(left.size() + right.size() + 1) {}

    Lines lines() {
        search();
        Lines result;
        int x = m_left.size();
        int y = m_right.size();
        for (int d = m_frontiers.size() - 1; d >= 0; --d) {
            const QVector<int>& before = m_frontiers.at(d);
            const int k = x - y;
            const bool down = d > 0 && goesDown(before, k, d);
            const int fromX = d == 0 ? 0 : before.at(m_offset + (down ? k + 1 : k - 1));
            const int fromY = d == 0 ? 0 : fromX - (down ? k + 1 : k - 1);
            while (x > fromX && y > fromY && x > 0 && y > 0 &&
                   m_left.at(x - 1) == m_right.at(y - 1)) {
                result.append({DiffLine::Kind::Same, m_left.at(x - 1), x, y});
                --x;
                --y;
            }
            if (d > 0 && down) {
                result.append({DiffLine::Kind::Added, m_right.at(y - 1), 0, y});
                --y;
            } else if (d > 0) {
                result.append({DiffLine::Kind::Removed, m_left.at(x - 1), x, 0});
                --x;
            }
        }
        std::reverse(result.begin(), result.end());
        return result;
    }

private:
    bool goesDown(const QVector<int>& frontier, int k, int d) const {
        return k == -d || (k != d && frontier.at(m_offset + k - 1) < frontier.at(m_offset + k + 1));
    }

    void search() {
        QVector<int> frontier(2 * m_offset + 1, 0);
        for (int d = 0;; ++d) {
            m_frontiers.append(frontier);
            for (int k = -d; k <= d; k += 2) {
                int x = d == 0                     ? 0
                        : goesDown(frontier, k, d) ? frontier.at(m_offset + k + 1)
                                                   : frontier.at(m_offset + k - 1) + 1;
                while (x < m_left.size() && x - k < m_right.size() &&
                       m_left.at(x) == m_right.at(x - k)) {
                    ++x;
                }
                frontier[m_offset + k] = x;
                if (x >= m_left.size() && x - k >= m_right.size()) {
                    return;
                }
            }
        }
    }

    const QStringList& m_left;
    const QStringList& m_right;
    const int m_offset;
    QVector<QVector<int>> m_frontiers;
};

} // namespace

QVector<DiffLine> diffLines(const QStringList& left, const QStringList& right) {
    // Same lines at both ends need no search.
    int head = 0;
    while (head < std::min(left.size(), right.size()) && left.at(head) == right.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < std::min(left.size(), right.size()) - head &&
           left.at(left.size() - 1 - tail) == right.at(right.size() - 1 - tail)) {
        ++tail;
    }
    Lines result;
    for (int i = 0; i < head; ++i) {
        result.append({DiffLine::Kind::Same, left.at(i), i + 1, i + 1});
    }
    const QStringList middleLeft = left.mid(head, left.size() - head - tail);
    const QStringList middleRight = right.mid(head, right.size() - head - tail);
    const Lines middle = EditPath(middleLeft, middleRight).lines();
    for (DiffLine line : middle) {
        line.left += line.left == 0 ? 0 : head;
        line.right += line.right == 0 ? 0 : head;
        result.append(line);
    }
    for (int i = tail; i > 0; --i) {
        result.append({DiffLine::Kind::Same, left.at(left.size() - i), left.size() - i + 1,
                       right.size() - i + 1});
    }
    return result;
}

bool differs(const QVector<DiffLine>& lines) {
    return std::any_of(lines.begin(), lines.end(),
                       [](const DiffLine& line) { return line.kind != DiffLine::Kind::Same; });
}

QVector<DiffLine> condensed(const QVector<DiffLine>& lines, int context) {
    QVector<bool> kept(lines.size(), false);
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).kind != DiffLine::Kind::Same) {
            const int last = std::min(lines.size() - 1, i + context);
            for (int k = std::max(0, i - context); k <= last; ++k) {
                kept[k] = true;
            }
        }
    }
    Lines result;
    bool leap = false;
    for (int i = 0; i < lines.size(); ++i) {
        if (kept.at(i)) {
            if (leap && !result.isEmpty()) {
                result.append(DiffLine());
            }
            result.append(lines.at(i));
            leap = false;
        } else {
            leap = true;
        }
    }
    return result;
}

} // namespace Ipgen
