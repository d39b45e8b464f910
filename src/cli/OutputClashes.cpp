#include "cli/OutputClashes.h"

#include "output/FilePlaces.h"

#include <unordered_map>
#include <utility>

namespace satwecvt {

namespace {

class CClashes {
public:
    explicit CClashes(const CBatchFiles& files) : batch(files) {}

    /// To be called for all pairs before the first `AddInputs`.
    void AddOutputs(const CConversionPaths& pair)
    {
        for (const std::string& path : {pair.model, pair.messageLog}) {
            const auto [writer, isNew] = writers.try_emplace(KeyOf(path), &pair);
            if (!isNew && writer->second != &pair) {
                texts.push_back(writer->second->structure + " and " + pair.structure + " would both write " + path);
                return;  // where the models clash, the logs do
            }
        }
    }

    void AddInputs(const CConversionPaths& pair)
    {
        for (const std::string& path : {pair.structure, pair.load}) {
            const std::string key = KeyOf(path);
            const auto writer = writers.find(key);
            if (writer != writers.end() && writer->second != &pair) {
                texts.push_back(path + ": " + writer->second->structure + " would write this input of another pair");
            }
            readers.try_emplace(key, &pair);
        }
    }

    /// To be called when all pairs are known.
    std::vector<std::string> Take()
    {
        if (!batch.list.empty()) {
            CheckOwn("--list " + batch.list, writers, KeyOf(batch.list));
        }
        if (!batch.record.empty()) {
            const std::string key = KeyOf(batch.record);
            const std::string name = "--json-lines " + batch.record;
            CheckOwn(name, writers, key);
            CheckOwn(name, readers, key);
            CheckInputs(name);
            if (!batch.list.empty() && IsRecord(batch.list)) {
                texts.push_back(name + ": this file is the list");
            }
        }
        return std::move(texts);
    }

private:
    /// Whether a file is the record under another of its names: hard links have no key in common. The record alone is
    /// emptied where it lies; other outputs are replaced.
    bool IsRecord(const std::string& path) const
    {
        return KeyOf(path) == KeyOf(batch.record) ||
               CFileSystem::System().IsSameFile(path.c_str(), batch.record.c_str());
    }

    void CheckInputs(const std::string& name)
    {
        for (const auto& [key, pair] : readers) {
            if (texts.empty() && (IsRecord(pair->structure) || IsRecord(pair->load))) {
                texts.push_back(name + ": this file belongs to the conversion of " + pair->structure);
            }
        }
    }

    using CPairByFile = std::unordered_map<std::string, const CConversionPaths*>;

    static std::string KeyOf(const std::string& path) { return CFilePlaces::System().KeyOf(path); }

    void CheckOwn(const std::string& name, const CPairByFile& pairs, const std::string& key)
    {
        const auto pair = pairs.find(key);
        if (pair != pairs.end()) {
            texts.push_back(name + ": this file belongs to the conversion of " + pair->second->structure);
        }
    }

    const CBatchFiles& batch;
    CPairByFile writers;
    CPairByFile readers;
    std::vector<std::string> texts;
};

}  // namespace

std::vector<std::string> OutputClashes(const std::vector<CConversionPaths>& pairs, const CBatchFiles& batch)
{
    CClashes clashes(batch);
    for (const CConversionPaths& pair : pairs) {
        clashes.AddOutputs(pair);
    }
    for (const CConversionPaths& pair : pairs) {
        clashes.AddInputs(pair);
    }
    return clashes.Take();
}

}  // namespace satwecvt
