// How somebody else ends a process: asked, it may refuse; forced, it can't. What becomes of it is said by who started it.
#pragma once

namespace desk {

enum class Ending { asked, forced };

}  // namespace desk
