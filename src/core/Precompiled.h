#pragma once

#include <QtCore/QtCore>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>
