#include "blocks/flow_ctl_info.h"
#include "api/forward.h"

// [FlowCTLInfo]

using namespace qel;
using namespace qel::flow_ctl_info;

bool CQELPROReader_Manipulator::FlowCTLInfo_ReadTotalInlet(int& value) {
  return read(session_, &Session::flow_ctl_info, kTotalInlet, {}, value);
}

bool CQELPROReader_Manipulator::FlowCTLInfo_ReadFlowCTL(int& first, int& second, int inlet) {
  return read(session_, &Session::flow_ctl_info, kFlowCTLOfInlet, at_point(inlet), first, second);
}
