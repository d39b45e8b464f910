// Each block of the model text file, written from the tower sample into a sink.
#include "BenchFiles.h"
#include "reader/InputFile.h"
#include "reader/SatweReader.h"
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

class CSilentProgress : public CProgressWindow {
public:
    void SetTotalLines(std::int32_t) override {}
    int StepLine(std::int32_t) override { return 1; }
    void SetStageText(std::string_view) override {}
};

class CSilentInterface : public CUserInterface {
public:
    void ShowMessage(std::string_view text) override { throw std::runtime_error(std::string(text)); }
    void ReportFileError(std::string_view, std::string_view) override {}
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override { return nullptr; }
};

/// The tower, read, with its elements written once: the model that the other blocks are written from.
struct CTower {
    CTower() : modelFile(files), messageFile(files)
    {
        CSilentInterface ui;
        CSilentProgress progress;
        CFileSystem& system = CFileSystem::System();
        const char* const structure = SATWECVT_SAMPLES "/tower/structure.sat";
        const char* const load = SATWECVT_SAMPLES "/tower/load.sat";
        const CLineCounts lines{CountLines(system, structure), CountLines(system, load)};
        CSatweReader(readModel, system, ui).ReadStructureFile(structure, load, lines, progress);
        model = readModel;
        modelFile.Open("model");
        messageFile.Open("messages");
        WriteNodes(modelFile, model, writtenNodes, counts);
        CElementOutput elements{modelFile, messageFile, model, writtenNodes, counts};
        WriteElements(elements);
    }

    CBenchFiles files;
    COutputFile modelFile;
    COutputFile messageFile;
    CSatweModel readModel;
    CSatweModel model;
    CWrittenNodes writtenNodes;
    CWrittenCounts counts;
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
        state.PauseTiming();
        CSatweModel model = tower.readModel;
        CWrittenCounts counts;
        state.ResumeTiming();
        CElementOutput elements{tower.modelFile, tower.messageFile, model, tower.writtenNodes, counts};
        WriteElements(elements);
        state.SetItemsProcessed(state.items_processed() + counts.beams + counts.columns + counts.braces + counts.walls +
                                counts.plates);
    }
}
BENCHMARK(Elements);

/// A block that needs nothing but the model. Its items are the lines counted by `count`.
void Block(benchmark::State& state, void (*write)(COutputFile&, const CSatweModel&, CWrittenCounts&),
           std::int64_t CWrittenCounts::*count)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        write(tower.modelFile, tower.model, counts);
        state.SetItemsProcessed(state.items_processed() + counts.*count);
    }
}
BENCHMARK_CAPTURE(Block, Materials, WriteMaterials, &CWrittenCounts::materials);
BENCHMARK_CAPTURE(Block, Sections, WriteSections, &CWrittenCounts::sections);
BENCHMARK_CAPTURE(Block, Thicknesses, WriteThicknesses, &CWrittenCounts::thicknesses);
BENCHMARK_CAPTURE(Block, Supports, WriteSupports, &CWrittenCounts::supports);
BENCHMARK_CAPTURE(Block, Releases, WriteReleases, &CWrittenCounts::releases);
BENCHMARK_CAPTURE(Block, Offsets, WriteOffsets, &CWrittenCounts::offsets);

void NodalLoads(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        WriteNodalLoads(tower.modelFile, tower.model, tower.writtenNodes, ELoadCase::DeadLoad, counts);
        state.SetItemsProcessed(state.items_processed() + counts.nodalLoads);
    }
}
BENCHMARK(NodalLoads);

void BeamLoads(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        WriteBeamLoads(tower.modelFile, tower.messageFile, tower.model, tower.writtenNodes, ELoadCase::DeadLoad,
                       counts);
        state.SetItemsProcessed(state.items_processed() + counts.beamLoads);
    }
}
BENCHMARK(BeamLoads);

void PressureLoads(benchmark::State& state)
{
    CTower& tower = Tower();
    for (auto _ : state) {
        CWrittenCounts counts;
        WritePressureLoads(tower.modelFile, tower.model, ELoadCase::DeadLoad, counts);
        state.SetItemsProcessed(state.items_processed() + counts.pressureLoads);
    }
}
BENCHMARK(PressureLoads);

}  // namespace
}  // namespace satwecvt
