// The tables of the model against plain containers: find-or-add numbering against a search from the first entry on,
// records under keys against std::map.
#include "Finding.h"
#include "FuzzTarget.h"
#include "model/ConversionTables.h"
#include "model/RecordTable.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <map>
#include <vector>

namespace satwecvt {
namespace {

/// Takes an input apart; zeros follow its end.
class CInputBytes {
public:
    CInputBytes(const std::uint8_t* bytes, std::size_t count) : data(bytes), size(count) {}

    bool IsAtEnd() const { return size == 0; }

    template <class Value>
    Value Take()
    {
        Value value{};
        const std::size_t taken = std::min(size, sizeof value);
        if (taken > 0) {
            std::memcpy(&value, data, taken);
        }
        data += taken;
        size -= taken;
        return value;
    }

    /// One of a few numbers, so that equal ones come often; now and then any.
    double TakeReal()
    {
        constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
        constexpr double kFew[] = {0.0, -0.0, 1.0, 200.0, 200.0000001, kNan, -1.0, 1e-320};
        const auto choice = Take<std::uint8_t>();
        return choice < std::size(kFew) * 16 ? kFew[choice % std::size(kFew)] : Take<double>();
    }
    std::int32_t TakeInteger()
    {
        const auto choice = Take<std::int8_t>();
        return choice != 127 ? choice / 8 : Take<std::int32_t>();
    }

private:
    const std::uint8_t* data;
    std::size_t size;
};

/// The number of an entry, found as the format tells it: the first equal one, or a new one.
template <class Entry>
std::int32_t SlowFindOrAdd(std::vector<Entry>& entries, const Entry& entry)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i] == entry) {
            return static_cast<std::int32_t>(i + 1);
        }
    }
    entries.push_back(entry);
    return static_cast<std::int32_t>(entries.size());
}

void CheckThicknesses(CInputBytes input)
{
    const CSatweModel model;
    CConversionTables tables(model);
    std::vector<double> slow;
    while (!input.IsAtEnd()) {
        const double value = input.TakeReal();
        Expect(SlowFindOrAdd(slow, value) == tables.FindOrAddThickness(value), "a thickness has the wrong number");
    }
    Expect(std::equal(slow.begin(), slow.end(), tables.Thicknesses().begin(), tables.Thicknesses().end(), IsSameNumber),
           "the thicknesses differ");
}

void CheckMaterials(CInputBytes input)
{
    const CSatweModel model;
    CConversionTables tables(model);
    std::vector<T_SATWE_MATL_D> slow;
    while (!input.IsAtEnd()) {
        const T_SATWE_MATL_D material{EMaterialType{input.TakeInteger()}, input.TakeInteger(), input.TakeInteger()};
        const std::int32_t number = tables.FindOrAddMaterial(material.type, material.grade, material.steelGrade);
        Expect(SlowFindOrAdd(slow, material) == number, "a material has the wrong number");
    }
    Expect(slow == tables.Materials(), "the materials differ");
}

T_SATWE_SECT_D TakeSection(CInputBytes& input)
{
    T_SATWE_SECT_D section;
    section.kind = ESectionKind{input.TakeInteger()};
    section.param1 = input.TakeInteger();
    section.dims[0] = input.TakeReal();
    section.dims[9] = input.TakeReal();
    return section;
}

void CheckSections(CInputBytes input)
{
    CSatweModel model;
    CConversionTables tables(model);
    std::map<std::int32_t, T_SATWE_SECT_D> definitions;
    for (auto count = input.Take<std::uint8_t>() % 20; count > 0; --count) {
        const std::int32_t key = input.TakeInteger();
        definitions[key] = TakeSection(input);
        model.inputSections.Insert(key, definitions[key]);
    }
    model.inputSections.SortByKey();

    std::vector<T_SATWE_SECT_D> slow;
    while (!input.IsAtEnd()) {
        const std::int32_t key = input.TakeInteger();
        const auto found = definitions.find(key);
        T_SATWE_SECT_D section = found != definitions.end() ? found->second : T_SATWE_SECT_D{};
        const std::int32_t concrete = input.TakeInteger();
        const std::int32_t steel = input.TakeInteger();
        const auto kind = static_cast<std::int32_t>(section.kind);
        if (kind >= 12 && kind <= 15) {
            section.concreteGrade = concrete;
            section.steelGrade = steel;
        }
        Expect(SlowFindOrAdd(slow, section) == tables.FindOrAddSection(key, concrete, steel),
               "a section has the wrong number");
    }
    Expect(slow.size() == tables.Sections().size(), "the sections differ");
}

void CheckRecords(CInputBytes input)
{
    CRecordTable<int> table;
    std::map<std::int32_t, int> slow;
    std::size_t replaced = 0;
    std::vector<std::int32_t> asked{0, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::int32_t>::max()};
    std::int32_t key = input.Take<std::int32_t>();
    for (int record = 0; !input.IsAtEnd(); ++record) {
        table.Insert(key, record);
        replaced += slow.insert_or_assign(key, record).second ? 0U : 1U;
        for (const std::int64_t near : {-1, 0, 1}) {
            asked.push_back(static_cast<std::int32_t>(key + near));
        }
        // Mostly the next key, so that runs of consecutive ones, and breaks in them, come often.
        const auto step = input.Take<std::int8_t>();
        key = step == 127 ? input.Take<std::int32_t>()
                          : static_cast<std::int32_t>(key + std::int64_t{step >= 0 ? 1 : step});
    }
    table.SortByKey();

    Expect(table.Count() == slow.size(), "the count of records differs");
    const std::vector<std::int32_t> keys = table.Keys();
    Expect(keys.size() == slow.size(), "the count of keys differs");
    std::size_t position = 0;
    for (const auto& [slowKey, record] : slow) {
        Expect(keys[position] == slowKey && table.KeyAt(position) == slowKey, "a key differs");
        Expect(table.Records()[position] == record && table.At(position) == record, "a record differs");
        ++position;
    }
    Expect(table.Replaced().size() == replaced, "the count of replaced records differs");
    for (std::size_t i = 0; i < replaced; ++i) {
        const auto later = slow.find(table.KeyOfReplaced(i));
        Expect(later != slow.end() && later->second > table.Replaced()[i], "a record was replaced by no later one");
    }
    for (const std::int32_t someKey : asked) {
        const auto found = slow.find(someKey);
        const int* const record = table.Find(someKey);
        Expect((found != slow.end()) == (record != nullptr), "Find is wrong about a key");
        Expect(record == nullptr || *record == found->second, "Find has another record");
    }
}

}  // namespace
}  // namespace satwecvt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    satwecvt::CInputBytes input(data, size);
    switch (input.Take<std::uint8_t>() % 4) {
    case 0:
        satwecvt::CheckThicknesses(input);
        break;
    case 1:
        satwecvt::CheckMaterials(input);
        break;
    case 2:
        satwecvt::CheckSections(input);
        break;
    default:
        satwecvt::CheckRecords(input);
    }
    return 0;
}
