#include "core/DiskView.h"

namespace ZORVEL {

namespace {

DiskView* currentView = nullptr;

}  // namespace

ViewedDisk::ViewedDisk(DiskView& view) : m_previous(currentView) { currentView = &view; }

ViewedDisk::~ViewedDisk() { currentView = m_previous; }

DiskView* ViewedDisk::GetView() { return currentView; }

}  // namespace ZORVEL
