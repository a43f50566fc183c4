#pragma once

// The consolidator: one collector of process data, one record per process, and a heartbeat that
// reads, retires and announces. This header is all that its clients include.
#include "consolidator/Applications.h"
#include "consolidator/ClassicReports.h"
#include "consolidator/PSHeaders.h"
#include "consolidator/ProcessInformationClient.h"
#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "consolidator/WholeNames.h"

namespace lurkwell {

class RunLoopTimer;

/// Starts the consolidator: its regions, the ps columns, and the heartbeat on the machine's run
/// loop, which beats at once and then whenever the most urgent client is due, at least every 15
/// seconds. Once, on the main thread; a second call is a fatal assertion.
void InitializeProcessInformationConsolidator();

/// One heartbeat: runs the feeders, announces what is new, changed and gone, gives the due clients
/// their turns and sets the timer's next date. The timer's callback; main thread.
void HeartbeatCFTimerFunc(RunLoopTimer* timer);

/// Makes an active client due and the heart beat as soon as the run loop comes round, instead of
/// when the client's interval has passed. Main thread.
void RequestUpdate(ProcessInformationClient* client);

/// Whether ps has told its columns by now (or that it has none): what is unknown then, there is
/// not. Main thread.
bool ArePSColumnsKnown();

/// Ends the heartbeat and forgets every record. Main thread, when no client is left.
void DestroyProcessInformationConsolidator();

}  // namespace lurkwell
