// Each block of the model text file, written from the tower sample into a sink.
#include "BenchFiles.h"
#include "reader/SatweReader.h"
#include "satwecvt/SilentInterface.h"
#include "writer/BeamLoadBlock.h"
#include "writer/ElementBlock.h"
#include "writer/MaterialBlock.h"
#include "writer/NodalLoadBlock.h"
#include "writer/NodeBlock.h"
#include "writer/OffsetBlock.h"
#include "writer/PressureBlock.h"
#include "writer/ReleaseBlock.h"
#include "writer/SectionBlock.h"
#include "writer/SupportBlock.h"
#include "writer/ThicknessBlock.h"

#include <benchmark/benchmark.h>

#include <stdexcept>

namespace satwecvt {
namespace {

class CDeafListener : public CFindingListener {
public:
    void Tell(const CFinding&) override {}
};

/// The tower, read, with its elements written once: what the other blocks are written from.
struct CTower {
    CTower() : model(*ReadTower()), modelFile(files), tables(model)
    {
        if (modelFile.Open("model") == 0) {
            throw std::runtime_error("no sink");
        }
        WriteNodes(modelFile, model, writtenNodes, counts);
        CElementOutput elements{modelFile, findings, model, writtenNodes, tables, lostWalls, counts};
        WriteElements(elements);
    }

    const CSatweModel& model;
    CBenchFiles files;
    COutputFile modelFile;
    CDeafListener findings;
    CConversionTables tables;
    CWrittenNodes writtenNodes;
    CLostWalls lostWalls;
    CWrittenCounts counts;

private:
    static const CSatweModel* ReadTower()
    {
        static CSatweModel read;
        CSilentInterface ui;
        CSatweReader reader(read, CFileSystem::System(), ui, nullptr);
        CSilentProgress progress;
        const CConversionPaths paths{SATWECVT_SAMPLES "/tower/structure.sat", SATWECVT_SAMPLES "/tower/load.sat", "",
                                     ""};
        reader.CountLines(paths);
        if (reader.ReadStructureFile(paths, progress) == 0) {
            throw std::runtime_error("the tower cannot be read");
        }
        return &read;
    }
};

CTower& Tower()
{
    static CTower tower;
    return tower;
}

void Nodes(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenNodes writtenNodes;
        CWrittenCounts counts;
        WriteNodes(tower.modelFile, tower.model, writtenNodes, counts);
        state.SetItemsProcessed(state.items_processed() + counts.nodes);
    }
}
BENCHMARK(Nodes);

void Elements(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CConversionTables tables(tower.model);
        CWrittenCounts counts;
        CLostWalls lostWalls;
        CElementOutput elements{tower.modelFile, tower.findings, tower.model, tower.writtenNodes,
                                tables,          lostWalls,      counts};
        WriteElements(elements);
        state.SetItemsProcessed(state.items_processed() + counts.beams + counts.columns + counts.braces + counts.walls +
                                counts.plates);
    }
}
BENCHMARK(Elements);

void Supports(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        WriteSupports(tower.modelFile, tower.model, counts);
        state.SetItemsProcessed(state.items_processed() + counts.supports);
    }
}
BENCHMARK(Supports);

/// A block that needs nothing but the tables. Its items are the lines counted by `count`.
void Block(benchmark::State& state, void (*write)(COutputFile&, const CConversionTables&, CWrittenCounts&),
           std::int64_t CWrittenCounts::*count)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        write(tower.modelFile, tower.tables, counts);
        state.SetItemsProcessed(state.items_processed() + counts.*count);
    }
}
BENCHMARK_CAPTURE(Block, Materials, WriteMaterials, &CWrittenCounts::materials);
BENCHMARK_CAPTURE(Block, Sections, WriteSections, &CWrittenCounts::sections);
BENCHMARK_CAPTURE(Block, Thicknesses, WriteThicknesses, &CWrittenCounts::thicknesses);
BENCHMARK_CAPTURE(Block, Releases, WriteReleases, &CWrittenCounts::releases);
BENCHMARK_CAPTURE(Block, Offsets, WriteOffsets, &CWrittenCounts::offsets);

/// A block of the dead load case.
void LoadBlock(benchmark::State& state, void (*write)(CLoadOutput&, ELoadCase), std::int64_t CWrittenCounts::*count)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        CLoadOutput loads{tower.modelFile, tower.findings, tower.model, tower.writtenNodes, tower.lostWalls, counts};
        write(loads, ELoadCase::DeadLoad);
        state.SetItemsProcessed(state.items_processed() + counts.*count);
    }
}
BENCHMARK_CAPTURE(LoadBlock, NodalLoads, WriteNodalLoads, &CWrittenCounts::nodalLoads);
BENCHMARK_CAPTURE(LoadBlock, BeamLoads, WriteBeamLoads, &CWrittenCounts::beamLoads);
BENCHMARK_CAPTURE(LoadBlock, PressureLoads, WritePressureLoads, &CWrittenCounts::pressureLoads);

}  // namespace
}  // namespace satwecvt
