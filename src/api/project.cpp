#include "blocks/project.h"
#include "api/forward.h"

// [Project]

using namespace qel;
using namespace qel::project;

bool CQELPROReader_Manipulator::Project_ReadMesh(char*& text) {
  return read(session_, &Session::project, kMesh, {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadMaterial(char*& text) {
  return read(session_, &Session::project, kMaterial, {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadMeshID(char*& text) {
  return read(session_, &Session::project, kMeshID, {}, text);
}

bool CQELPROReader_Manipulator::Project_ReadCavityVolume(double& value) {
  return read(session_, &Session::project, kCavVol, {}, value);
}

bool CQELPROReader_Manipulator::Project_ReadCushionVolume(double& value) {
  return read(session_, &Session::project, kCushionVol, {}, value);
}

bool CQELPROReader_Manipulator::Project_ReadClampFaceArea(double& value) {
  return read(session_, &Session::project, kClampFaceArea, {}, value);
}

bool CQELPROWriter_Manipulator::Project_WriteMesh(char* text) {
  return write(session_, &Session::project, kMesh, {}, text);
}

bool CQELPROWriter_Manipulator::Project_WriteMaterial(char* text) {
  return write(session_, &Session::project, kMaterial, {}, text);
}

bool CQELPROWriter_Manipulator::Project_WriteCavityVolume(double value) {
  return write(session_, &Session::project, kCavVol, {}, value);
}

bool CQELPROWriter_Manipulator::Project_WriteCushionVolume(double value) {
  return write(session_, &Session::project, kCushionVol, {}, value);
}
