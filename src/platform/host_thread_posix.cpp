#include "platform/host_thread.h"

#include <pthread.h>

static_assert(qel::platform::CancelState::kDisabled == PTHREAD_CANCEL_DISABLE);
static_assert(qel::platform::CancelState::kDeferred == PTHREAD_CANCEL_DEFERRED);
