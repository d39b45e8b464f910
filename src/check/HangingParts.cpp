#include "check/HangingParts.h"

#include "check/LookFinding.h"

#include <algorithm>
#include <numeric>

namespace satwecvt {

namespace {

/// A part without a support.
struct CPart {
    CElementName first;
    std::int64_t elements;
};

/// Gathers the elements of parts without a support.
class CUnsupportedParts {
public:
    CUnsupportedParts(const CHangingParts& hangingParts, const std::vector<char>& supported)
        : parts(hangingParts),
          isSupported(supported),
          partAt(supported.size(), kNone)
    {}

    void Add(const CElementName& name, std::uint32_t position)
    {
        const std::uint32_t root = parts.PartOf(position);
        if (isSupported[root] != 0) {
            return;
        }
        if (partAt[root] == kNone) {
            partAt[root] = static_cast<std::uint32_t>(found.size());
            found.push_back({name, 0});
        }
        CPart& part = found[partAt[root]];
        ++part.elements;
        if (name.element < part.first.element) {
            part.first = name;
        }
    }

    /// In the order of their first elements.
    std::vector<CPart> Found()
    {
        std::stable_sort(found.begin(), found.end(),
                         [](const CPart& a, const CPart& b) { return a.first.element < b.first.element; });
        return std::move(found);
    }

private:
    const CHangingParts& parts;
    const std::vector<char>& isSupported;
    std::vector<std::uint32_t> partAt;  // by root: its place in `found`
    std::vector<CPart> found;
};

/// By root: whether a support is in the part.
std::vector<char> SupportedParts(const CSatweModel& model, const CNodeList& nodes, const CFrameList& frames,
                                 const CHangingParts& parts)
{
    std::vector<char> isSupported(frames.Positions(), 0);
    for (const T_SATWE_STND_D& support : model.nodes.Records()) {
        isSupported[parts.PartOf(nodes.Find(support.number))] = 1;
    }
    return isSupported;
}

}  // namespace

CHangingParts::CHangingParts(const CFrameList& frames, const CPlanarElements& planarElements)
    : towards(frames.Positions()),
      isUsed(frames.Positions(), 0)
{
    std::iota(towards.begin(), towards.end(), 0U);
    for (const CFrame& frame : frames.Frames()) {
        Join(frame.nodeI, frame.nodeJ);
    }
    for (const CPlanar& element : planarElements.Elements()) {
        const auto& [first, second, third, fourth] = element.nodes;
        Join(first, second);
        Join(first, third);
        Join(first, fourth);
    }
    for (std::uint32_t& next : towards) {
        next = towards[next];  // from below, so that every way has one step
    }
}

/// Both ways are halved as they are walked.
void CHangingParts::Join(std::uint32_t a, std::uint32_t b) noexcept
{
    isUsed[a] = 1;
    isUsed[b] = 1;
    const auto step = [this](std::uint32_t position) {
        const std::uint32_t next = towards[towards[position]];
        towards[position] = next;
        return next;
    };
    while (towards[a] != a) {
        a = step(a);
    }
    while (towards[b] != b) {
        b = step(b);
    }
    towards[std::max(a, b)] = std::min(a, b);
}

void TellUnsupportedParts(const CSatweModel& model, const CNodeList& nodes, const CFrameList& frames,
                          const CPlanarElements& planarElements, const CHangingParts& parts, CFindingListener& listener)
{
    const std::vector<char> isSupported = SupportedParts(model, nodes, frames, parts);
    const auto hangsInTheAir = [&](std::uint32_t position) {
        return parts.IsUsed(position) && isSupported[parts.PartOf(position)] == 0;
    };
    std::uint32_t position = 0;
    while (position < isSupported.size() && !hangsInTheAir(position)) {
        ++position;
    }
    if (position == isSupported.size()) {
        return;
    }
    CUnsupportedParts unsupported(parts, isSupported);
    for (const CFrame& frame : frames.Frames()) {
        unsupported.Add(frame.name, frame.nodeI);
    }
    for (const CPlanar& element : planarElements.Elements()) {
        unsupported.Add(element.name, element.nodes[0]);
    }
    for (const CPart& part : unsupported.Found()) {
        CFinding finding = ElementFinding(EFinding::NotSupported, model, part.first);
        finding.values[0] = static_cast<double>(part.elements);
        listener.Tell(finding);
    }
}

}  // namespace satwecvt
