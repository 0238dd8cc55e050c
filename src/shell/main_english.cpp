#include "shell/run_editor.h"

int main(int argc, char** argv)
{
    return torvane::runEditor(argc, argv, torvane::Language::English);
}
