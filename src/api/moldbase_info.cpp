#include "blocks/moldbase_info.h"
#include "api/forward.h"

// [MoldbaseInfo]

using namespace qel;
using namespace qel::moldbase_info;

bool CQELPROReader_Manipulator::MoldbaseInfo_ReadMoldbaseInfo(int& number, char*& name,
                                                              int moldbase) {
  return read(session_, &Session::moldbase_info, kMoldbase, at_point(moldbase), number, name);
}

bool CQELPROWriter_Manipulator::MoldbaseInfo_WriteMoldbaseInfo(int number, char* name,
                                                               int moldbase) {
  return write(session_, &Session::moldbase_info, kMoldbase, at_point(moldbase), number, name);
}
