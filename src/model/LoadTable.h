// The loads of a model in the order of the load file.
//
// There are many of them, so each is kept in as few bytes as its type needs: sixteen, and eight for each value that the
// type uses. Whoever visits them gets whole records.
#pragma once

#include "model/LoadRecord.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace satwecvt {

class CLoadTable {
public:
    /// Makes room for that many loads in all.
    void Reserve(std::size_t count)
    {
        entries.reserve(count);
        values.reserve(count * T_SATWE_STLD_D().value.size());
    }

    void Add(const T_SATWE_STLD_D& load)
    {
        if (stories.empty() || stories.back().storyId != load.storyId) {
            stories.push_back({load.storyId, entries.size()});
        }
        if (values.size() > kMostValues) {
            throw std::length_error("more load values than there is room for");
        }
        entries.push_back({load.memberId, load.loadType, load.line, load.loadCase != 0 ? 1U : 0U,
                           static_cast<std::uint32_t>(values.size()) & kMostValues});
        const std::size_t valueCount = TraitsOf(load.loadType).valueCount;
        for (std::size_t i = 0; i < valueCount; ++i) {
            values.push_back(load.value[i]);
        }
    }

    std::size_t Count() const noexcept { return entries.size(); }

    /// Calls `visit` with every load, in order, that `isVisited` takes by its type and case (0 dead, 1 live).
    template <class IsVisited, class VisitLoad>
    void Visit(IsVisited isVisited, VisitLoad visit) const
    {
        for (std::size_t s = 0; s < stories.size(); ++s) {
            const std::size_t end = s + 1 < stories.size() ? stories[s + 1].firstEntry : entries.size();
            for (std::size_t i = stories[s].firstEntry; i < end; ++i) {
                const CEntry& entry = entries[i];
                if (isVisited(entry.loadType, entry.LoadCase())) {
                    visit(Unpacked(stories[s].storyId, entry));
                }
            }
        }
    }

    /// Calls `visit` with the type of every load, in order.
    template <class VisitType>
    void VisitTypes(VisitType visit) const
    {
        for (const CEntry& entry : entries) {
            visit(entry.loadType);
        }
    }

    /// Calls `visit` with every load, in order.
    template <class VisitLoad>
    void Visit(VisitLoad visit) const
    {
        Visit([](ELoadType, std::int32_t) { return true; }, visit);
    }

private:
    struct CEntry {
        std::int32_t memberId;
        ELoadType loadType;
        std::int32_t line;
        std::uint32_t isLive : 1;
        std::uint32_t firstValue : 31;

        std::int32_t LoadCase() const noexcept { return isLive != 0 ? 1 : 0; }
    };

    /// The loads from `firstEntry` on belong to a story.
    struct CStory {
        std::int32_t storyId;
        std::size_t firstEntry;
    };

    static constexpr std::uint32_t kMostValues = 0x7FFFFFFF;  // 16 GiB of them

    T_SATWE_STLD_D Unpacked(std::int32_t storyId, const CEntry& entry) const noexcept
    {
        T_SATWE_STLD_D load{storyId, entry.memberId, entry.loadType, entry.LoadCase(), {}, entry.line};
        const std::size_t valueCount = TraitsOf(entry.loadType).valueCount;
        for (std::size_t i = 0; i < valueCount; ++i) {
            load.value[i] = values[entry.firstValue + i];
        }
        return load;
    }

    std::vector<CEntry> entries;
    std::vector<double> values;
    std::vector<CStory> stories;
};

}  // namespace satwecvt
