// The frame of panel/Barajado with the jigsaw's own deal.
#pragma once

#include "jigsaw/Reparto.h"
#include "panel/Barajado.h"
