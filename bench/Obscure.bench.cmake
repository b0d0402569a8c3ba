tessaly_bench(Obscure USES core/Imaging)
