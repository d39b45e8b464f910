// A whole model text file as plain data: what its lines say, in their order, and nothing that follows from it. A record
// may name a node, an element or a property that the file does not have.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

/// A line of "*NODE". Where a number occurs twice, the later node is meant by it.
struct CNode {
    std::int32_t number = 0;  // iNO
    double x = 0.0;           // X
    double y = 0.0;           // Y
    double z = 0.0;           // Z
};

/// A BEAM of "*ELEMENT": a beam, column or brace.
struct CFrameElement {
    std::int32_t number = 0;    // iEL
    std::int32_t material = 0;  // iMAT
    std::int32_t section = 0;   // iPRO
    std::int32_t nodeI = 0;     // iN1
    std::int32_t nodeJ = 0;     // iN2
    double angle = 0.0;         // ANGLE, by which the section is turned
};

enum class EPlanarElement { Wall, Plate };

/// A WALL or PLATE of "*ELEMENT".
struct CPlanarElement {
    EPlanarElement type = EPlanarElement::Wall;  // TYPE
    std::int32_t number = 0;                     // iEL
    std::int32_t material = 0;                   // iMAT
    std::int32_t thickness = 0;                  // iPRO
    std::array<std::int32_t, 4> nodes{};         // iN1 to iN4; a plate has three and then 0
};

enum class EMaterial { Concrete, Steel, Composite };

/// A line of "*MATERIAL".
struct CMaterial {
    std::int32_t number = 0;               // iMAT
    EMaterial type = EMaterial::Concrete;  // TYPE: CONC, STEEL, SRC
    std::string name;                      // MNAME
    std::string concrete;                  // NAME of the concrete, as C30; of steel empty
    std::string steel;                     // NAME of the steel, as 16Mn; of concrete empty
};

enum class ESection { Value, User, Combined, Composite };

/// A section of "*SECTION", from one to three lines. A value that its kind of line does not have is 0.
struct CSection {
    std::int32_t number = 0;            // iSEC
    ESection type = ESection::User;     // TYPE: VALUE, DBUSER, COMBINED, SRC
    std::string shape;                  // SHAPE, as SB or H2T
    std::array<double, 9> values{};     // D1 to D6; COMBINED: D11 to D15, D21 to D24
    std::array<double, 4> composite{};  // SRC: ELAST, DEN, POIS, POIC
    std::array<double, 8> further{};    // 2nd line; VALUE: AREA, ASy, ASz, Ixx, Iyy, Izz; SRC: D1, D2, then D1 to D6
};

/// A line of "*THICKNESS".
struct CThickness {
    std::int32_t number = 0;  // iTHK
    double value = 0.0;       // THIK-IN
};

/// A line of "*CONSTRAINT": a node that is held in all six directions.
struct CSupport {
    std::int32_t node = 0;  // NODE_LIST
};

/// Two lines of "*FRAME-RLS". A hinge frees both bending moments.
struct CRelease {
    std::int32_t element = 0;  // ELEM_LIST
    bool isHingeAtI = false;   // FLAG-i
    bool isHingeAtJ = false;   // FLAG-j
};

/// A line of "*OFFSET", in global directions.
struct COffset {
    std::int32_t element = 0;        // ELEM_LIST
    std::array<double, 6> values{};  // RGDXi, RGDYi, RGDZi, RGDXj, RGDYj, RGDZj
};

/// A line of "*CONLOAD".
struct CNodalLoad {
    std::int32_t node = 0;  // NODE_LIST
    double fx = 0.0;        // FX
    double fy = 0.0;        // FY
    double fz = 0.0;        // FZ
    double mx = 0.0;        // MX
    double my = 0.0;        // MY
    double mz = 0.0;        // MZ
};

/// A value at a place along a beam.
struct CPlacedValue {
    double place = 0.0;  // D1 to D4, a fraction of the beam's length from its end i
    double value = 0.0;  // P1 to P4
};

enum class EBeamLoad { Concentrated, Distributed };

/// A line of "*BEAMLOAD", in the global direction Z.
struct CBeamLoad {
    std::int32_t element = 0;                  // ELEM_LIST
    EBeamLoad type = EBeamLoad::Concentrated;  // TYPE: CONLOAD, which has one pair, UNILOAD
    std::array<CPlacedValue, 4> pairs{};       // those that are not used are 0, 0
};

/// A line of "*PRESSURE": along an edge of a wall, in the global direction Z.
struct CEdgeLoad {
    std::int32_t element = 0;  // ELEM_LIST
    std::int32_t edge = 0;     // iEDGE, from 1 to 4
    double value = 0.0;        // PU
};

/// A line of "*STLDCASE", and what stands behind its "*USE-STLD". A block can have a header and no loads.
struct CLoadCase {
    std::string name;  // LCNAME
    bool hasNodalHeader = false;
    bool hasBeamHeader = false;
    bool hasEdgeHeader = false;
    std::vector<CNodalLoad> nodalLoads;
    std::vector<CBeamLoad> beamLoads;
    std::vector<CEdgeLoad> edgeLoads;
};

struct CModelFile {
    std::vector<CNode> nodes;
    std::vector<CFrameElement> frameElements;
    std::vector<CPlanarElement> planarElements;
    std::vector<CMaterial> materials;
    std::vector<CSection> sections;
    std::vector<CThickness> thicknesses;
    std::vector<CSupport> supports;
    std::vector<CRelease> releases;
    std::vector<COffset> offsets;
    std::vector<CLoadCase> loadCases;  // always DeadLoad and LiveLoad, whose loads contain the dead ones
};

}  // namespace satwecvt
