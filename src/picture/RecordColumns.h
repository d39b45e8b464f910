// Columns of records: a value, or several, of each.
#pragma once

#include "picture/ColumnBytes.h"

#include <iterator>
#include <string_view>
#include <type_traits>
#include <vector>

namespace satwecvt {

/// Adds a column with a value of each record.
template <class Records, class ValueOf>
void AddColumn(CColumnBytes& columns, std::string_view name, const Records& records, ValueOf valueOf)
{
    using CValue = std::decay_t<decltype(valueOf(*std::begin(records)))>;
    std::vector<CValue> values;
    values.reserve(std::size(records));
    for (const auto& record : records) {
        values.push_back(valueOf(record));
    }
    columns.Add(name, values);
}

/// Adds a column with several values of each record, one behind the other.
template <class Records, class ValuesOf>
void AddRows(CColumnBytes& columns, std::string_view name, const Records& records, ValuesOf valuesOf)
{
    using CValue = typename std::decay_t<decltype(valuesOf(*std::begin(records)))>::value_type;
    std::vector<CValue> values;
    for (const auto& record : records) {
        const auto& row = valuesOf(record);
        values.insert(values.end(), row.begin(), row.end());
    }
    columns.Add(name, values);
}

}  // namespace satwecvt
