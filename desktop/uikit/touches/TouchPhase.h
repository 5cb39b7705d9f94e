#pragma once

/// What has happened to a finger.
enum class TouchPhase { Began, Moved, Ended, Cancelled };
