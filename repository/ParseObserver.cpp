#include "repository/ParseObserver.h"

namespace ZORVEL {

namespace {

ParseObserver* currentObserver = nullptr;

}  // namespace

ObservedParsing::ObservedParsing(ParseObserver& observer) : m_previous(currentObserver) { currentObserver = &observer; }

ObservedParsing::~ObservedParsing() { currentObserver = m_previous; }

ParseObserver* ObservedParsing::GetObserver() { return currentObserver; }

}  // namespace ZORVEL
