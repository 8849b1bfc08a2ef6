#pragma once

/// The front door of Quillet::Backend: the three calls to the back end and what they answer, without Qt.
#include "Quillet/Authorization.hpp"
#include "Quillet/BackendClient.hpp"
#include "Quillet/CartForConsultant.hpp"
#include "Quillet/FatalErrorWrapper.hpp"
#include "Quillet/Platform/MainQueue.hpp"
#include "Quillet/Platform/URLSessionConfiguration.hpp"
#include "Quillet/Results.hpp"
#include "Quillet/Version.hpp"
#include "Quillet/Workers.hpp"
