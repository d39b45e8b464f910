// The sample frame as a picture, put together by hand: one story of four beams, four columns and a slab of two
// triangles. Tests change it before they ask for the picture.
#pragma once

#include "modelfile/ModelReader.h"
#include "modelfile/ModelTexts_test.h"
#include "picture/Picture.h"

#include <string>
#include <vector>

namespace satwecvt {

inline const std::string kFrameText = ModelTextOf({
    .nodes = "  1, 0, 0, 0\n  2, 6000, 0, 0\n  3, 6000, 5000, 0\n  4, 0, 5000, 0\n"
             "  5, 0, 0, 3600\n  6, 6000, 0, 3600\n  7, 6000, 5000, 3600\n  8, 0, 5000, 3600\n",
    .elements = "  1, BEAM, 1, 1, 5, 6, 0\n  2, BEAM, 1, 1, 6, 7, 0\n  3, BEAM, 1, 1, 7, 8, 0\n"
                "  4, BEAM, 2, 2, 8, 5, 0\n  5, BEAM, 3, 3, 1, 5, 0\n  6, BEAM, 3, 3, 2, 6, 0\n"
                "  7, BEAM, 3, 3, 3, 7, 0\n  8, BEAM, 3, 3, 4, 8, 0\n"
                "  9, PLATE, 4, 1, 5, 6, 7, 0, 1\n  10, PLATE, 4, 1, 5, 7, 8, 0, 1\n",
    .materials = "  1, CONC, C30, 0, 0, 1, GB(RC), C30\n  2, STEEL, 16Mn, 0, 0, 1, GB(S), 16Mn\n"
                 "  3, CONC, C40, 0, 0, 1, GB(RC), C40\n  4, CONC, C25, 0, 0, 1, GB(RC), C25\n",
    .sections = "  1, DBUSER, Sec1, CC, SB, 2, 600, 300, 0, 0, 0, 0\n"
                "  2, DBUSER, Sec2, CC, H, 2, 400, 200, 8, 13, 200, 13\n"
                "  3, DBUSER, Sec3, CC, SB, 2, 500, 500, 0, 0, 0, 0\n",
    .thicknesses = "  1, VALUE, YES, 120, 0\n",
    .supports = "  1, 111111\n  2, 111111\n  3, 111111\n  4, 111111\n",
    .releases = "  4, 000011, 0, 0, 0, 0, 0, 0\n      000011, 0, 0, 0, 0, 0, 0,\n",
    .offsets = "  3, GLOBAL, 0, 100, 0, 0, 100, 0,  \n",
});

class CFramePicture {
public:
    CFramePicture() : model(ReadModelFile(kFrameText)), path("frame/structure.sat"), stories{{1, 7, 34}}
    {
        for (const CNode& node : model.nodes) {
            nodes.push_back({EObject::Node, node.number <= 4 ? kNoStory : 0, node.number, 0});
        }
        for (const CFrameElement& frame : model.frameElements) {
            const bool isBeam = frame.number <= 4;
            frames.push_back(
                {isBeam ? EObject::Beam : EObject::Column, 0, isBeam ? frame.number : frame.number - 4, 0});
        }
        planars.assign(2, {EObject::Plate, 0, 1, 0});
    }

    /// An element of the first story. Its key is its number.
    void AddFrame(EObject object, const CFrameElement& frame)
    {
        model.frameElements.push_back(frame);
        frames.push_back({object, 0, frame.number, 0});
    }
    void AddPlanar(const CPlanarElement& element)
    {
        model.planarElements.push_back(element);
        planars.push_back(
            {element.type == EPlanarElement::Wall ? EObject::Wall : EObject::Plate, 0, element.number, 0});
    }

    /// Valid as long as the object is.
    CPicture Picture() const
    {
        return {{input, model, findings, {}, path, "", ""}, stories, nodes, frames, planars, lostShapes, lostLoads};
    }

    CSatweModel input;
    CModelFile model;
    std::vector<CFinding> findings;
    std::string path;
    std::vector<CPictureStory> stories;
    std::vector<COrigin> nodes;
    std::vector<COrigin> frames;
    std::vector<COrigin> planars;
    std::vector<CLostShape> lostShapes;
    std::vector<CLostLoad> lostLoads;
};

}  // namespace satwecvt
