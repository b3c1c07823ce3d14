#pragma once

#include "blocks/block.h"

/// [ICPackage]
namespace qel::ic_package {

inline constexpr char kSection[] = "[ICPackage]";

}  // namespace qel::ic_package

class CQELPROBlockIOICPackage : public CQELPROBlockIOBase {
 public:
  CQELPROBlockIOICPackage() : CQELPROBlockIOBase(qel::ic_package::kSection) {}
};
