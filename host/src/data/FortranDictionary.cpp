#include <unordered_set>

#include <host/Data.h>

namespace {

/// Never destroyed: a dictionary may outlive every other static object, and what
/// a program never closed stays reachable from here.
std::unordered_set<const KORVA_FortranDictionary*>& liveDictionaries() {
  static auto& table = *new std::unordered_set<const KORVA_FortranDictionary*>;
  return table;
}

} // namespace

KORVA_FortranDictionary::KORVA_FortranDictionary() { liveDictionaries().insert(this); }

KORVA_FortranDictionary::~KORVA_FortranDictionary() { liveDictionaries().erase(this); }

bool KORVA_FortranDictionary::isAlive(const KORVA_FortranDictionary* dictionary) {
  return liveDictionaries().contains(dictionary);
}

ProcedureDataSource::ProcedureDataSource(void* procedureHandle, KORVA_FortranDictionary* dictionary)
    : procedureHandle_(procedureHandle), dictionary_(dictionary) {
  dictionary_->Use();
}

ProcedureDataSource::~ProcedureDataSource() {
  if (KORVA_FortranDictionary::isAlive(dictionary_)) dictionary_->Release();
}
