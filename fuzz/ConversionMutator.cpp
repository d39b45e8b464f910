// What libFuzzer calls in place of its own mutations, for inputs that are two files. Its own are made now and then.
#include "ConversionInput.h"
#include "Finding.h"
#include "InputMutator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t capacity);

namespace satwecvt {
namespace {

/// Returns 0, which libFuzzer takes as "no change", when the text is too long.
std::size_t Store(const std::string& text, std::uint8_t* data, std::size_t capacity)
{
    if (text.size() > capacity) {
        return 0;
    }
    std::copy(text.begin(), text.end(), data);
    return text.size();
}

std::string Mutate(const std::string& text, CInputMutator& mutator)
{
    CConversionInput input = CConversionInput::Split(text);
    for (std::size_t count = 1 + mutator.Below(3); count > 0; --count) {
        if (mutator.Below(4) == 0) {
            input.load = mutator.Mutate(input.load, CInputMutator::EFile::Load);
        } else {
            input.structure = mutator.Mutate(input.structure, CInputMutator::EFile::Structure);
        }
    }
    return input.Joined();
}

}  // namespace
}  // namespace satwecvt

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t capacity,
                                               unsigned int seed)
{
    satwecvt::CInputMutator mutator(seed);
    if (mutator.Below(8) == 0) {
        return LLVMFuzzerMutate(data, size, capacity);
    }
    const std::size_t mutated =
        satwecvt::Store(satwecvt::Mutate(satwecvt::TextOf(data, size), mutator), data, capacity);
    return mutated != 0 ? mutated : size;
}

/// The structure of one input with the loads of another.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* one, std::size_t oneSize,
                                                 const std::uint8_t* other, std::size_t otherSize, std::uint8_t* output,
                                                 std::size_t capacity, unsigned int /*seed*/)
{
    auto crossed = satwecvt::CConversionInput::Split(satwecvt::TextOf(one, oneSize));
    crossed.load = satwecvt::CConversionInput::Split(satwecvt::TextOf(other, otherSize)).load;
    return satwecvt::Store(crossed.Joined(), output, capacity);
}
