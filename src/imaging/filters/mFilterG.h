#pragma once

#include "platform/gdi/Surface.h"
#include "platform/system/RandomNumbers.h"
#include "services/MessageLoop.h"

namespace kestrel::filters {

// Runs filters, one at a time: while one lets events run, another does nothing.
class mFilterG {
  public:
    mFilterG(services::MessageLoop& loop, system::RandomNumbers& random)
        : loop_(loop), random_(random) {}

    // Filters the picture in place. Numbers that are no filter's leave it as it is.
    void RunFilter(int FilterId, gdi::Surface& picture, int Param);

    services::MessageLoop& Loop() { return loop_; }

  private:
    services::MessageLoop& loop_;
    system::RandomNumbers& random_;
    bool FilterBusy = false;
};

}  // namespace kestrel::filters
