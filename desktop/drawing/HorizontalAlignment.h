#pragma once

enum class HorizontalAlignment { Left, Center, Right };
