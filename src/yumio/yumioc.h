// SPDX-FileCopyrightText: 2026 The developers of VOK
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class YumIO;

// The module yumIOC, through which the script calls the engine.
class YumIOC
{
public:
    // Registers the module the first time; every time, makes `engine` the one that is called. The
    // interpreter lock must be held. False with the interpreter's error set on failure.
    static bool initialize(YumIO *engine);

private:
    static struct PyMethodDef s_methods[];
    static YumIO *s_engine;
};
