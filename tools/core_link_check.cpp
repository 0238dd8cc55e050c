// Links the whole of torvane_core and nothing else: what this program needs is what the core needs.
int main()
{
    return 0;
}
