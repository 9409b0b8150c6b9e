#include "filtermanager.h"

FilterManager::FilterManager() = default;

FilterManager::~FilterManager() = default;
