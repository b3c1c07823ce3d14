#include "QELPROEngine/CQELPRORSVReader_Manipulator.h"
#include "QELPROEngine/CQELPRORSVWriter_Manipulator.h"

CQELPRORSVReader_Manipulator::CQELPRORSVReader_Manipulator() = default;
CQELPRORSVReader_Manipulator::CQELPRORSVReader_Manipulator(
    const CQELPRORSVReader_Manipulator& /*other*/) = default;
CQELPRORSVReader_Manipulator& CQELPRORSVReader_Manipulator::operator=(
    const CQELPRORSVReader_Manipulator& /*other*/) = default;
CQELPRORSVReader_Manipulator::~CQELPRORSVReader_Manipulator() = default;

CQELPRORSVWriter_Manipulator::CQELPRORSVWriter_Manipulator() = default;
CQELPRORSVWriter_Manipulator::CQELPRORSVWriter_Manipulator(
    const CQELPRORSVWriter_Manipulator& /*other*/) = default;
CQELPRORSVWriter_Manipulator& CQELPRORSVWriter_Manipulator::operator=(
    const CQELPRORSVWriter_Manipulator& /*other*/) = default;
CQELPRORSVWriter_Manipulator::~CQELPRORSVWriter_Manipulator() = default;
