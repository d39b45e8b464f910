// Elements of a model text file by their number and nodes. Numbers alone can stand twice: a plate of fewer than two
// corners takes numbers back.
#pragma once

#include "modelfile/ModelFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace satwecvt {

/// An element's number and its nodes.
template <std::size_t kCount>
using CElementKey = std::array<std::int32_t, kCount>;

inline CElementKey<3> KeyOf(const CFrameElement& frame) noexcept
{
    return {frame.number, frame.nodeI, frame.nodeJ};
}

inline CElementKey<5> KeyOf(const CPlanarElement& element) noexcept
{
    const auto& [first, second, third, fourth] = element.nodes;
    return {element.number, first, second, third, fourth};
}

template <class Element, std::size_t kKey>
class CSortedElements {
public:
    void Reserve(std::size_t count) { elements.reserve(count); }
    void Add(const Element& element) { elements.push_back(&element); }

    /// Has to run after the last `Add` and before the first `Find`. Elements mostly stand in order.
    void Sort()
    {
        const auto isBefore = [](const Element* a, const Element* b) { return KeyOf(*a) < KeyOf(*b); };
        if (!std::is_sorted(elements.begin(), elements.end(), isBefore)) {
            std::sort(elements.begin(), elements.end(), isBefore);
        }
    }

    /// The element with a key, or null. Loads mostly go from element to element, so the next ones are looked at first.
    const Element* Find(const CElementKey<kKey>& key)
    {
        constexpr std::size_t kAhead = 3;
        for (std::size_t i = last; i < (std::min)(last + kAhead, elements.size()); ++i) {
            if (KeyOf(*elements[i]) == key) {
                last = i;
                return elements[i];
            }
        }
        last = PositionOf(key);
        return last < elements.size() && KeyOf(*elements[last]) == key ? elements[last] : nullptr;
    }

    /// The first element with a number, or null.
    const Element* FindFirst(std::int32_t number) const
    {
        CElementKey<kKey> least;
        least.fill((std::numeric_limits<std::int32_t>::min)());
        least[0] = number;
        const std::size_t position = PositionOf(least);
        return position < elements.size() && elements[position]->number == number ? elements[position] : nullptr;
    }

private:
    /// Of the first element that is not before a key.
    std::size_t PositionOf(const CElementKey<kKey>& key) const
    {
        const auto found =
            std::lower_bound(elements.begin(), elements.end(), key,
                             [](const Element* a, const CElementKey<kKey>& wanted) { return KeyOf(*a) < wanted; });
        return static_cast<std::size_t>(found - elements.begin());
    }

    std::vector<const Element*> elements;
    std::size_t last = 0;  // found last
};

}  // namespace satwecvt
