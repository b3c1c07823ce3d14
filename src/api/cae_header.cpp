#include "blocks/cae_header.h"
#include "api/forward.h"

// [CaeHeader]

using namespace qel;
using namespace qel::cae_header;

bool CQELPROReader_Manipulator::CaeHeader_ReadVersion(char*& text) {
  return read(session_, &Session::cae_header, kVersion, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadRelease(char*& text) {
  return read(session_, &Session::cae_header, kRelease, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadProject(char*& text) {
  return read(session_, &Session::cae_header, kProject, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadEngineer(char*& text) {
  return read(session_, &Session::cae_header, kEngineer, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadParent(char*& text) {
  return read(session_, &Session::cae_header, kParent, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadType(char*& text) {
  return read(session_, &Session::cae_header, kType, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileVersion(char*& text) {
  return read(session_, &Session::cae_header, kFileVersion, {}, text);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileVersion(int& value) {
  return read(session_, &Session::cae_header, kFileVersionNumber, {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadFileType(int& value) {
  return read(session_, &Session::cae_header, kFileType, {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadSmartSetting(int& value) {
  return read(session_, &Session::cae_header, kSmartSetting, {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadSettingMode(int& value) {
  return read(session_, &Session::cae_header, kSettingMode, {}, value);
}

bool CQELPROReader_Manipulator::CaeHeader_ReadProjectType(int& value) {
  return read(session_, &Session::cae_header, kProjectType, {}, value);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteVersion(char* text) {
  return write(session_, &Session::cae_header, kVersion, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteRelease(char* text) {
  return write(session_, &Session::cae_header, kRelease, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteProject(char* text) {
  return write(session_, &Session::cae_header, kProject, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteEngineer(char* text) {
  return write(session_, &Session::cae_header, kEngineer, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteParent(char* text) {
  return write(session_, &Session::cae_header, kParent, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteType(char* text) {
  return write(session_, &Session::cae_header, kType, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteFileVersion(char* text) {
  return write(session_, &Session::cae_header, kFileVersion, {}, text);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteFileType(int value) {
  return write(session_, &Session::cae_header, kFileType, {}, value);
}

bool CQELPROWriter_Manipulator::CaeHeader_WriteSmartSetting(int value) {
  return write(session_, &Session::cae_header, kSmartSetting, {}, value);
}
