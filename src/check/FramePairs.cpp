#include "check/FramePairs.h"

#include "check/Places.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <tuple>

namespace satwecvt {

namespace {

/// An element by its end at the higher position, for sorting: that position, then its own among the frame elements.
using CHighEnd = std::uint64_t;

class CFramePairs {
public:
    CFramePairs(const CFrameList& frameList, const std::vector<CVector>& nodePlaces,
                const std::vector<std::uint32_t>& firstNodes, CPartners& pairsBySameNodes, CPartners& overlappingPairs)
        : frames(frameList.Frames()),
          places(nodePlaces),
          firstAtPlace(firstNodes),
          sameNodes(pairsBySameNodes),
          overlaps(overlappingPairs)
    {}

    void Find()
    {
        SortByLowEnd();
        for (std::size_t place = 0; place + 1 < starts.size(); ++place) {
            const std::span bucket(highEnds.data() + starts[place], highEnds.data() + starts[place + 1]);
            if (bucket.size() > 1) {
                FindAtLowEnd(static_cast<std::uint32_t>(place), bucket);
            }
        }
    }

private:
    std::uint32_t LowEnd(const CFrame& frame) const
    {
        return std::min(firstAtPlace[frame.nodeI], firstAtPlace[frame.nodeJ]);
    }

    std::uint32_t HighEnd(const CFrame& frame) const
    {
        return std::max(firstAtPlace[frame.nodeI], firstAtPlace[frame.nodeJ]);
    }

    void SortByLowEnd()
    {
        starts.assign(firstAtPlace.size() + 1, 0);
        for (const CFrame& frame : frames) {
            ++starts[LowEnd(frame)];
        }
        std::uint32_t total = 0;
        for (std::uint32_t& start : starts) {
            total += start;
            start = total;  // for now where the elements of the place end
        }
        highEnds.resize(total);
        for (std::size_t i = frames.size(); i-- > 0;) {
            highEnds[--starts[LowEnd(frames[i])]] = CHighEnd{HighEnd(frames[i])} << 32 | i;
        }
    }

    void FindAtLowEnd(std::uint32_t lowEnd, std::span<CHighEnd> bucket)
    {
        std::sort(bucket.begin(), bucket.end());
        for (std::size_t first = 0; first < bucket.size();) {
            std::size_t end = first + 1;
            while (end < bucket.size() && bucket[end] >> 32 == bucket[first] >> 32) {
                ++end;
            }
            if (end - first > 1) {
                FindInGroup(lowEnd, bucket.subspan(first, end - first));
            }
            first = end;
        }
    }

    /// What elements that are to be told as of the same nodes have in common.
    std::tuple<EObject, std::uint32_t, std::uint32_t> SortOf(std::uint32_t frame) const
    {
        const auto& [nodeI, nodeJ, name] = frames[frame];
        return {name.kind, std::min(nodeI, nodeJ), std::max(nodeI, nodeJ)};
    }

    /// The elements of a group have both ends at the same two places.
    void FindInGroup(std::uint32_t lowEnd, std::span<const CHighEnd> members)
    {
        group.clear();
        for (const CHighEnd member : members) {
            group.push_back(static_cast<std::uint32_t>(member));
        }
        const auto earliest = SortOf(group.front());
        const auto isOther = [&](std::uint32_t frame) { return SortOf(frame) != earliest; };
        const auto other = std::find_if(group.begin(), group.end(), isOther);
        const auto highEnd = static_cast<std::uint32_t>(members.front() >> 32);
        if (other != group.end() && lowEnd != highEnd && HasPlace(places[lowEnd]) && HasPlace(places[highEnd])) {
            AddOverlaps(group.front(), *other);
        }
        std::sort(group.begin(), group.end(), [&](std::uint32_t a, std::uint32_t b) {
            return std::tuple(SortOf(a), a) < std::tuple(SortOf(b), b);
        });
        std::uint32_t first = group.front();
        for (const std::uint32_t frame : group) {
            if (SortOf(frame) != SortOf(first)) {
                first = frame;
            } else if (frame != first) {
                sameNodes.Add(first, frame);
            }
        }
    }

    /// Pairs every element with the earliest one of another sort: the first of the group, or the first that is of
    /// another sort than that one.
    void AddOverlaps(std::uint32_t first, std::uint32_t firstOther)
    {
        for (const std::uint32_t frame : group) {
            overlaps.Add(frame, SortOf(frame) == SortOf(first) ? firstOther : first);
        }
    }

    const std::vector<CFrame>& frames;
    const std::vector<CVector>& places;
    const std::vector<std::uint32_t>& firstAtPlace;
    CPartners& sameNodes;
    CPartners& overlaps;
    std::vector<std::uint32_t> starts;  // by position: where the elements with that low end start
    std::vector<CHighEnd> highEnds;
    std::vector<std::uint32_t> group;  // frame elements of one group
};

}  // namespace

void FindFramePairs(const CFrameList& frames, const std::vector<CVector>& places,
                    const std::vector<std::uint32_t>& firstAtPlace, CPartners& sameNodes, CPartners& overlaps)
{
    CFramePairs(frames, places, firstAtPlace, sameNodes, overlaps).Find();
}

}  // namespace satwecvt
