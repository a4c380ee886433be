#include "statspack/facts.h"

namespace kestrelix::statspack {

// One event a line, below the first release that has it; no event ever left the list.
const std::string_view kIdleEvents = R"(
# since 9
Null event
PX Deq: Execution Msg
PX Deq: Table Q Normal
PX Idle Wait
SQL*Net message from client
SQL*Net message to client
SQL*Net more data from client
client message
dispatcher timer
gcs for action
gcs remote message
ges remote message
i/o slave wait
jobq slave wait
lock manager wait for remote message
null event
parallel query dequeue
pipe get
pmon timer
queue messages
rdbms ipc message
slave wait
smon timer
virtual circuit status
wakeup time manager
# since 10
AQ Proxy Cleanup Wait
ASM background timer
DIAG idle wait
EMON idle wait
KSV master wait
LNS ASYNC archive log
LNS ASYNC dest activation
LNS ASYNC end of log
LogMiner: client waiting for transaction
LogMiner: slave waiting for activate message
LogMiner: wakeup event for builder
LogMiner: wakeup event for preparer
LogMiner: wakeup event for reader
PX Deq Credit: need buffer
PX Deq Credit: send blkd
PX Deq: Execute Reply
PX Deq: Par Recov Execute
PX Deq: Signal ACK
PX Deq: Table Q Sample
PX Deque wait
Queue Monitor Shutdown Wait
Queue Monitor Slave Wait
Queue Monitor Wait
STREAMS apply coord waiting for slave message
STREAMS apply slave idle wait
STREAMS apply slave waiting for coord message
STREAMS capture process filter callback wait for ruleset
STREAMS fetch slave waiting for txns
STREAMS waiting for subscribers to catch up
Streams AQ: RAC qmn coordinator idle wait
Streams AQ: deallocate messages from Streams Pool
Streams AQ: delete acknowledged messages
Streams AQ: qmn coordinator idle wait
Streams AQ: qmn slave idle wait
Streams AQ: waiting for messages in the queue
Streams AQ: waiting for time management or cleanup tasks
Streams fetch slave: waiting for txns
class slave wait
knlqdeq
master wait
wait for activate message
wait for unread message on broadcast channel
wakeup event for builder
wakeup event for preparer
wakeup event for reader
# since 11
DBRM Logical Idle Wait
EMON slave idle wait
GCR sleep
HS message to agent
IORM Scheduler Slave Idle Wait
JOX Jit Process Sleep
JS external job
LGWR real time apply sync
LogMiner builder: branch
LogMiner builder: idle
LogMiner client: transaction
LogMiner preparer: idle
LogMiner reader: log (idle)
LogMiner reader: redo (idle)
LogMiner: activate
LogMiner: find session
LogMiner: generic process sleep
LogMiner: internal
LogMiner: other
LogMiner: reader waiting for more redo
LogMiner: reset
LogMiner: waiting for processes to soft detach
Logical Standby Apply Delay
MRP redo arrival
PING
PX Deq: Index Merge Close
PX Deq: Index Merge Execute
PX Deq: Index Merge Reply
PX Deq: Join ACK
PX Deq: Metadata Update
PX Deq: Msg Fragment
PX Deq: Parse Reply
PX Deq: Txn Recovery Reply
PX Deq: Txn Recovery Start
PX Deq: kdcph_mai
PX Deq: kdcphc_ack
SGA: MMAN sleep for component shrink
SQL*Net vector message from client
SQL*Net vector message from dblink
Space Manager: slave idle wait
Streams AQ: emn coordinator idle wait
Streams capture: waiting for archive log
Streams: waiting for messages
VKRM Idle
VKTM Init Wait for GSGA
VKTM Logical Idle Wait
WCR: replay client notify
WCR: replay clock
WCR: replay paused
auto-sqltune: wait graph update
cell worker idle
cmon timer
fbar timer
heartbeat monitor sleep
parallel recovery control message reply
parallel recovery coordinator waits for slave cleanup
parallel recovery slave idle wait
parallel recovery slave next change
parallel recovery slave wait for change
pool server timer
shared server idle wait
simulated log write delay
single-task message
wait for unread message on multiple broadcast channels
watchdog main loop
)";

}  // namespace kestrelix::statspack
