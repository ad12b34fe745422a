#pragma once
// The service routines, each at its place.

#include <base/percorsi.h>
#include <core/apri_form.h>
#include <core/cartelle.h>
#include <core/lettura.h>
#include <core/programmi.h>
