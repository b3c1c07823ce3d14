#include "blocks/file_header.h"
#include "api/forward.h"

// [FileHeader]

using namespace qel;
using namespace qel::file_header;

bool CQELPROReader_Manipulator::FileHeader_ReadName(char*& text) {
  return read(session_, &Session::file_header, kName, {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadType(char*& text) {
  return read(session_, &Session::file_header, kType, {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadDate(char*& text) {
  return read(session_, &Session::file_header, kDate, {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadCreateBy(char*& text) {
  return read(session_, &Session::file_header, kCreateBy, {}, text);
}

bool CQELPROReader_Manipulator::FileHeader_ReadRemark(char*& text) {
  return read(session_, &Session::file_header, kRemark, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteName(char* text) {
  return write(session_, &Session::file_header, kName, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteType(char* text) {
  return write(session_, &Session::file_header, kType, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteDate(char* text) {
  return write(session_, &Session::file_header, kDate, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteCreateBy(char* text) {
  return write(session_, &Session::file_header, kCreateBy, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteRemark(char* text) {
  return write(session_, &Session::file_header, kRemark, {}, text);
}

bool CQELPROWriter_Manipulator::FileHeader_WriteDate() {
  return session_ != nullptr && attempt([&] { return is_done(session_->file_header.WriteDate()); });
}
