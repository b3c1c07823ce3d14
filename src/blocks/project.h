#pragma once

#include "blocks/block.h"

/// [Project]: the mesh and material files and the volumes of the project.
namespace qel::project {

inline constexpr char kSection[] = "[Project]";

inline constexpr KeyInfo kKeys[] = {
    Key<Text>{"Mesh",
              {"Project_ReadMesh"},
              {"Project_WriteMesh"},
              "the mesh file",
              {.older = {"GetProjectMesh", "SetProjectMesh"}}},
    Key<Text>{"Material",
              {"Project_ReadMaterial"},
              {"Project_WriteMaterial"},
              "the material file",
              {.older = {"GetProjectMaterial", "SetProjectMaterial"}}},
    Key<Text>{"MeshID", {"Project_ReadMeshID"}, {}, "the identifier of the mesh"},
    Key<Real>{"CavVol",
              {"Project_ReadCavityVolume"},
              {"Project_WriteCavityVolume"},
              "the volume of the cavity, in cc",
              {.older = {"GetCavityVolume", "SetCavityVolume"}}},
    Key<Real>{"CushionVol",
              {"Project_ReadCushionVolume"},
              {"Project_WriteCushionVolume"},
              "the volume of the melt cushion that stays before the screw, in cc",
              {.older = {"GetCushionVolume", "SetCushionVolume"}}},
    Key<Real>{"ClampFaceArea",
              {"Project_ReadClampFaceArea"},
              {},
              "the projected area that the clamp holds shut"},
};

inline constexpr SectionInfo kInfo{
    kSection, "Project", "the mesh and material files and the volumes of the project", kKeys};

}  // namespace qel::project

using CQELPROBlockIOProject = qel::SectionBlock<qel::project::kInfo>;
