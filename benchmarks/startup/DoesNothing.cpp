// What it is linked with is all that its start costs.
int main()
{
    return 0;
}
