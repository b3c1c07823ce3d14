#pragma once

#include "blocks/block.h"

/// [Project]: the mesh and material files and the volumes of the project.
namespace qel::project {

inline constexpr char kSection[] = "[Project]";

inline constexpr Key<Text> kMesh{"Mesh",
                                 {"Project_ReadMesh"},
                                 {"Project_WriteMesh"},
                                 "the mesh file",
                                 {.older = {"GetProjectMesh", "SetProjectMesh"}}};
inline constexpr Key<Text> kMaterial{"Material",
                                     {"Project_ReadMaterial"},
                                     {"Project_WriteMaterial"},
                                     "the material file",
                                     {.older = {"GetProjectMaterial", "SetProjectMaterial"}}};
inline constexpr Key<Text> kMeshID{
    "MeshID", {"Project_ReadMeshID"}, {}, "the identifier of the mesh"};
inline constexpr Key<Real> kCavVol{"CavVol",
                                   {"Project_ReadCavityVolume"},
                                   {"Project_WriteCavityVolume"},
                                   "the volume of the cavity, in cc",
                                   {.older = {"GetCavityVolume", "SetCavityVolume"}}};
inline constexpr Key<Real> kCushionVol{
    "CushionVol",
    {"Project_ReadCushionVolume"},
    {"Project_WriteCushionVolume"},
    "the volume of the melt cushion that stays before the screw, in cc",
    {.older = {"GetCushionVolume", "SetCushionVolume"}}};
inline constexpr Key<Real> kClampFaceArea{"ClampFaceArea",
                                          {"Project_ReadClampFaceArea"},
                                          {},
                                          "the projected area that the clamp holds shut"};

inline constexpr const KeyInfo* kKeys[] = {&kMesh,   &kMaterial,   &kMeshID,
                                           &kCavVol, &kCushionVol, &kClampFaceArea};

inline constexpr SectionInfo kInfo{
    kSection, "Project", "the mesh and material files and the volumes of the project", kKeys};

}  // namespace qel::project

using CQELPROBlockIOProject = qel::SectionBlock<qel::project::kInfo>;
