#pragma once

namespace kestrelix {

/// Short text of e.component: "D:buffer cache" for the default pool, "K:" for the keep pool, "R: " with a
/// blank for the recycle pool.
inline constexpr const char* kMemoryComponent =
    "replace(replace(replace(e.component, 'DEFAULT ', 'D:'), 'KEEP ', 'K:'), 'RECYCLE','R:')";

}  // namespace kestrelix
